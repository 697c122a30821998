#include "qt/sheet_dialog.h"

#include "mainform/main_form.h"
#include "qt/page_sheet.h"
#include "qt/text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <utility>

namespace parabolt {
namespace {

constexpr double kPixelsPerInch = 96;

QPushButton* dialogButton(const char* name, const char* text) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

SheetDialog::SheetDialog(SheetContent content, Printer& printer, MessageBoxes& messages,
                         QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      content_(std::move(content)),
      printer_(printer),
      messages_(messages),
      page_(inLayoutInches(printer.paper())),
      room_(new QWidget),
      sheet_(new PageSheet([this] { return scale_; },
                           [this](Page& page) { composeSheet(page, scale_.Ratio, content_); },
                           room_)),
      told_(new QLabel) {
    setObjectName("sheetPreview");
    setWindowTitle(toQt(kApplicationTitle) + " - " + toQt(content_.title));
    setMinimumSize(560, 400);
    resize(screen()->availableSize() * 9 / 10);
    sheet_->setObjectName("sheetPage");
    told_->setObjectName("sheetTold");
    told_->setTextFormat(Qt::PlainText);
    told_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* fields = new QHBoxLayout;
    const auto add = [&](const char* caption, QLineEdit* edit, int stretch) {
        auto* label = new QLabel(caption);
        label->setBuddy(edit);
        fields->addWidget(label);
        fields->addWidget(edit, stretch);
    };
    add("P&layer:", field("sheetPlayer", &SheetFields::player), 2);
    add("&Fitter:", field("sheetFitter", &SheetFields::fitter), 2);
    add("&Date:", field("sheetDate", &SheetFields::date), 1);
    add("&Note:", field("sheetNote", &SheetFields::note), 4);
    auto* print = dialogButton("sheetPrint", "&Print");
    auto* close = dialogButton("sheetClose", "&Close");
    fields->addWidget(print);
    fields->addWidget(close);
    connect(print, &QPushButton::clicked, this, &SheetDialog::print);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(fields);
    rows->addWidget(told_);
    rows->addWidget(room_, 1);
}

QLineEdit* SheetDialog::field(const char* name, std::string SheetFields::*text) {
    auto* edit = new QLineEdit(toQt(content_.fields.*text));
    edit->setObjectName(name);
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance("  2026-12-30  "));
    connect(edit, &QLineEdit::textChanged, this, [this, text](const QString& typed) {
        content_.fields.*text = fromQt(typed);
        sheet_->update();
    });
    return edit;
}

void SheetDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    layout()->activate();
    fitPage();
}

void SheetDialog::fitPage() {
    scale_ = ScalePreviewToPage(page_, room_->width() / kPixelsPerInch,
                                room_->height() / kPixelsPerInch);
    const QSize size = (QSizeF(scale_.width, scale_.height) * kPixelsPerInch).toSize();
    sheet_->setGeometry((room_->width() - size.width()) / 2, 0, size.width(), size.height());
}

void SheetDialog::print() {
    const auto printed =
        printer_.print(content_.title, [this](Page& page) { composeSheet(page, 1, content_); });
    told_->setText(printed ? toQt(*printed) : QString());
    told_->setToolTip(told_->text());
    if (!printed)
        messages_.show(printed.why());
}

} // namespace parabolt
