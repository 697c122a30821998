#pragma once

#include "printing/frm_print_view.h"
#include "qt/form_binding.h"

#include <QDialog>
#include <memory>

namespace parabolt {

/// The window of the form `frmPrintView`. Comes up maximised; to be executed.
class PrintViewWindow : public QDialog {
public:
    explicit PrintViewWindow(frmPrintView& printView, QWidget* parent = nullptr);
    ~PrintViewWindow() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    frmPrintView& printView_;
    std::unique_ptr<FormBinding> binding_;
};

} // namespace parabolt
