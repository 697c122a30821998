#pragma once

#include "printing/print_view.h"
#include "qt/form_binding.h"

#include <QDialog>
#include <memory>

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
    std::unique_ptr<FormBinding> binding_;
};

} // namespace parabolt
