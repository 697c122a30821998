#include "qt/print_view_window.h"

#include "controls/units.h"
#include "qt/page_painter.h"
#include "qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>

namespace parabolt {
namespace {

/// The page on the screen: white paper, and on it the report once it has been composed.
class PageSheet : public QWidget {
public:
    PageSheet(const PrintView& form, QWidget* parent) : QWidget(parent), form_(form) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        if (!form_.preview())
            return;
        PagePainter page = PagePainter::onScreen(painter, *form_.preview());
        form_.composePreview(page);
    }

private:
    const PrintView& form_;
};

QPushButton* button(const Button& control, QWidget* parent) {
    auto* widget = new QPushButton(toQt(control.caption()), parent);
    widget->setObjectName(toQt(control.name()));
    widget->setAutoDefault(false);
    return widget;
}

QWidget* rowOfControls(const PrintView& form, QWidget* parent) {
    auto* row = new QWidget(parent);
    row->setFixedHeight(PrintView::kRowOfControls / kTwipsPerPixel);
    auto* label = new QLabel(toQt(form.Label1.caption()), row);
    label->setObjectName(toQt(form.Label1.name()));
    auto* caption = new QLineEdit(row);
    caption->setObjectName(toQt(form.txtCaption.name()));
    label->setBuddy(caption);
    auto* layout = new QHBoxLayout(row);
    const int gap = PrintView::kGapAtSides / kTwipsPerPixel;
    layout->setContentsMargins(gap, 0, gap, 0);
    layout->addWidget(label);
    layout->addWidget(caption, 1);
    layout->addSpacing(gap);
    for (const Button* control : {&form.cmdPrintPreview, &form.cmdPrint, &form.cmdClose})
        layout->addWidget(button(*control, row));
    return row;
}

} // namespace

PrintViewWindow::PrintViewWindow(PrintView& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      form_(form) {
    setObjectName("frmPrintView");
    setWindowTitle(toQt(PrintView::kCaption));
    setMinimumSize(480, 320);
    resize(screen()->availableSize() * 4 / 5);
    setWindowState(Qt::WindowMaximized);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(rowOfControls(form, this));
    rows->addStretch();
    auto* sheet = new PageSheet(form, this);
    sheet->setObjectName(toQt(form.Picture0.name()));

    binding_ = std::make_unique<FormBinding>(*this, form.controls, form.focus);
    form.Picture0.onViewChange = [&form, sheet] {
        const PictureBox::Geometry& place = form.Picture0.geometry();
        sheet->setGeometry(QRectF(place.left / kTwipsPerPixel, place.top / kTwipsPerPixel,
                                  place.width / kTwipsPerPixel, place.height / kTwipsPerPixel)
                               .toAlignedRect());
        sheet->update();
    };
    form.onUnload = [this] { accept(); };
    form.focus.give(form.txtCaption);
}

PrintViewWindow::~PrintViewWindow() {
    form_.onUnload = nullptr;
}

void PrintViewWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (!isMinimized())
        form_.Form_Resize(width() * kTwipsPerPixel, height() * kTwipsPerPixel);
}

} // namespace parabolt
