#pragma once

#include "printing/print_view.h"
#include "qt/form_binding.h"

#include <QDialog>

namespace parabolt {

/// The window of the form `frmPrintView`. Comes up maximised; to be executed.
class PrintViewWindow : public QDialog {
public:
    explicit PrintViewWindow(PrintView& form, QWidget* parent = nullptr);
    ~PrintViewWindow() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    PrintView& form_;
    FormBinding* binding_;
};

} // namespace parabolt
