#include "qt/print_view_window.h"

#include "controls/units.h"
#include "qt/page_sheet.h"
#include "qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>

namespace parabolt {
namespace {

QPushButton* button(const Button& control, QWidget* parent) {
    auto* widget = new QPushButton(toQt(control.caption()), parent);
    widget->setObjectName(toQt(control.name()));
    widget->setAutoDefault(false);
    return widget;
}

/// Shows what the logic writes into a label; cut off where it is longer than the window is wide.
QLabel* notice(const Label& control, QWidget* parent) {
    auto* widget = new QLabel(parent);
    widget->setObjectName(toQt(control.name()));
    widget->setTextFormat(Qt::PlainText);
    widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
    widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return widget;
}

/// Caption and buttons, and below them what there is to tell.
QWidget* rowOfControls(const PrintViewForm& form, QWidget* parent) {
    auto* row = new QWidget(parent);
    row->setFixedHeight(PrintViewForm::kRowOfControls / kTwipsPerPixel);
    auto* label = new QLabel(toQt(form.Label1.caption()), row);
    label->setObjectName(toQt(form.Label1.name()));
    auto* caption = new QLineEdit(row);
    caption->setObjectName(toQt(form.txtCaption.name()));
    label->setBuddy(caption);
    const int gap = PrintViewForm::kGapAtSides / kTwipsPerPixel;
    auto* lines = new QVBoxLayout(row);
    lines->setContentsMargins(gap, gap, gap, 0);
    auto* layout = new QHBoxLayout;
    lines->addLayout(layout);
    auto* notices = new QHBoxLayout;
    lines->addLayout(notices);
    notices->addWidget(notice(form.lblRows, row), 1);
    notices->addWidget(notice(form.lblResult, row), 2);
    layout->addWidget(label);
    layout->addWidget(caption, 1);
    layout->addSpacing(gap);
    for (const Button* control : {&form.cmdPrintPreview, &form.cmdPrint, &form.cmdClose})
        layout->addWidget(button(*control, row));
    return row;
}

} // namespace

PrintViewWindow::PrintViewWindow(frmPrintView& printView, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      printView_(printView) {
    PrintViewForm& form = printView.form;
    setObjectName("frmPrintView");
    setWindowTitle(toQt(PrintViewForm::kCaption));
    setMinimumSize(480, 320);
    resize(screen()->availableSize() * 4 / 5);
    setWindowState(Qt::WindowMaximized);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(rowOfControls(form, this));
    rows->addStretch();
    auto* sheet = new PageSheet(
        [&view = printView.handlers] { return view.preview(); },
        [&view = printView.handlers](Page& page) { view.composePreview(page); }, this);
    sheet->setObjectName(toQt(form.Picture0.name()));

    binding_ = std::make_unique<FormBinding>(*this, form.controls, form.focus);
    form.Picture0.onViewChange = [&form, sheet] {
        const PictureBox::Geometry& place = form.Picture0.geometry();
        sheet->setGeometry(QRectF(place.left / kTwipsPerPixel, place.top / kTwipsPerPixel,
                                  place.width / kTwipsPerPixel, place.height / kTwipsPerPixel)
                               .toAlignedRect());
        sheet->update();
    };
    for (Label* told : {&form.lblRows, &form.lblResult}) {
        auto* widget = findChild<QLabel*>(toQt(told->name()));
        told->onViewChange = [told, widget] {
            widget->setText(toQt(told->caption()));
            widget->setToolTip(widget->text());
        };
        told->onViewChange();
    }
    form.onUnload = [this] { accept(); };
    form.focus.give(form.txtCaption);
}

PrintViewWindow::~PrintViewWindow() {
    printView_.form.onUnload = nullptr;
}

void PrintViewWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (!isMinimized())
        printView_.handlers.Form_Resize(width() * kTwipsPerPixel, height() * kTwipsPerPixel);
}

} // namespace parabolt
