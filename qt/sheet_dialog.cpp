#include "qt/sheet_dialog.h"

#include "mainform/main_form.h"
#include "qt/flow_layout.h"
#include "qt/page_sheet.h"
#include "qt/text.h"
#include "qt/window_parts.h"

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
constexpr int kFieldLetters = 18; ///< of a field, twice as many of the note
constexpr int kLeastPage = 120;   ///< pixels of its height

} // namespace

SheetDialog::SheetDialog(SheetContent content, std::string_view now, Printer& printer,
                         MessageBoxes& messages, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      content_(std::move(content)),
      today_(now.substr(0, now.find(' '))),
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
    resize(screen()->availableSize() * 9 / 10);
    if (content_.fields.date.empty())
        content_.fields.date = today_;
    sheet_->setObjectName("sheetPage");
    told_->setObjectName("sheetTold");
    told_->setTextFormat(Qt::PlainText);
    told_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* head = new QWidget;
    auto* fields = new FlowLayout(head);
    const auto add = [&](const char* caption, QLineEdit* edit, int letters) {
        edit->setMinimumWidth(letters * edit->fontMetrics().averageCharWidth());
        fields->addWidget(labelledGroup({{caption, edit}}));
    };
    add("P&layer:", field("sheetPlayer", &SheetFields::player), kFieldLetters);
    add("&Fitter:", field("sheetFitter", &SheetFields::fitter), kFieldLetters);
    add("&Date:", field("sheetDate", &SheetFields::date), kFieldLetters);
    add("&Note:", field("sheetNote", &SheetFields::note), 2 * kFieldLetters);
    auto* print = pushButton("sheetPrint", "&Print");
    auto* close = pushButton("sheetClose", "&Close");
    fields->addWidget(print);
    fields->addWidget(close);
    connect(print, &QPushButton::clicked, this, &SheetDialog::print);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(head);
    rows->addWidget(told_);
    rows->addWidget(room_, 1);
    room_->setMinimumHeight(kLeastPage);
}

SheetFields SheetDialog::fields() const {
    SheetFields fields = content_.fields;
    if (fields.date == today_)
        fields.date.clear();
    return fields;
}

QLineEdit* SheetDialog::field(const char* name, std::string SheetFields::*text) {
    auto* edit = new QLineEdit(toQt(content_.fields.*text));
    edit->setObjectName(name);
    connect(edit, &QLineEdit::textChanged, this, [this, text](const QString& typed) {
        content_.fields.*text = fromQt(typed);
        sheet_->update();
    });
    return edit;
}

void SheetDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    setMinimumHeight(layout()->totalMinimumHeightForWidth(width())); // of all rows of fields
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
