#include "qt/printer.h"

#include "qt/dialogs.h"
#include "qt/file_dialog.h"
#include "qt/page_painter.h"
#include "qt/text.h"

#include <QApplication>
#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibrary>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr double kPdfMargin = 0.2; ///< inches; most printers reach that far
constexpr int kPdfResolution = 1200;

/// Where people print on Letter, as the Unicode locale data have it.
constexpr std::array kLetterCountries{
    QLocale::Belize,       QLocale::Canada,     QLocale::Chile,       QLocale::Colombia,
    QLocale::CostaRica,    QLocale::ElSalvador, QLocale::Guatemala,   QLocale::Mexico,
    QLocale::Nicaragua,    QLocale::Panama,     QLocale::Philippines, QLocale::PuertoRico,
    QLocale::UnitedStates, QLocale::Venezuela};

PageSize paperOf(const QPageLayout& layout) {
    const QRectF page = layout.fullRect(QPageLayout::Inch);
    const QRectF printable = layout.paintRect(QPageLayout::Inch);
    return {page.width(), page.height(), printable.width(), printable.height()};
}

QPageLayout pdfLayout(QPageSize::PageSizeId paper) {
    return {QPageSize(paper), QPageLayout::Landscape,
            QMarginsF(kPdfMargin, kPdfMargin, kPdfMargin, kPdfMargin), QPageLayout::Inch};
}

/// Paints one page on a device; false if the device refuses.
bool paint(QPagedPaintDevice& device, const std::function<void(Page&)>& compose) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    PagePainter page = PagePainter::onPaper(painter, paperOf(device.pageLayout()));
    compose(page);
    return painter.end();
}

/// Whether the system's spooler took the job that was just handed over, or in its own words why
/// not. Qt drops this answer, but the library that Qt prints through still has it.
Outcome<void, std::string> spoolerAnswer() {
    QLibrary cups("cups", 2);
    const auto lastError = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto description =
        reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    constexpr int kFirstError = 0x400; // among the status codes of the Internet Printing Protocol
    if (lastError == nullptr || description == nullptr || lastError() < kFirstError)
        return {};
    const char* reason = description();
    return because(std::string(reason != nullptr ? reason : "unknown"));
}

Outcome<void, std::string> printOn(const QPrinterInfo& info, std::string_view title,
                                   const std::function<void(Page&)>& compose) {
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(toQt(title));
    printer.setCreator(QApplication::applicationName());
    const std::string refused =
        "The printer \"" + fromQt(info.printerName()) + "\" doesn't take the report";
    if (!paint(printer, compose))
        return because(refused + ".");
    if (const auto taken = spoolerAnswer(); !taken)
        return because(refused + ": " + taken.why());
    return {};
}

} // namespace

QPageSize::PageSizeId usualPaper(const QLocale& locale) {
    const bool letter = std::find(kLetterCountries.begin(), kLetterCountries.end(),
                                  locale.territory()) != kLetterCountries.end();
    return letter ? QPageSize::Letter : QPageSize::A4;
}

Outcome<void, std::string> writePdf(const QString& fileName, QPageSize::PageSizeId paper,
                                    std::string_view title,
                                    const std::function<void(Page&)>& compose) {
    // Neither the PDF's own writer nor a commit without a flush would tell that the disk is full.
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageLayout(pdfLayout(paper));
    writer.setResolution(kPdfResolution);
    writer.setTitle(toQt(title));
    writer.setCreator(QApplication::applicationName());
    QSaveFile file(fileName);
    if (paint(writer, compose) && file.open(QIODevice::WriteOnly) &&
        file.write(bytes.data()) == bytes.size() && file.flush() && file.commit())
        return {};
    return because("The report can't be written to \"" + fromQt(QFileInfo(fileName).fileName()) +
                   "\": " + fromQt(file.errorString()));
}

PageSize QtPrinter::paper() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return paperOf(pdfLayout(usualPaper(QLocale::system())));
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    return paperOf(printer.pageLayout());
}

Outcome<void, std::string> QtPrinter::print(std::string_view title,
                                            const std::function<void(Page&)>& compose) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull())
        return printOn(info, title, compose);
    const QString fileName = askFileName();
    if (fileName.isEmpty())
        return {};
    return writePdf(fileName, usualPaper(QLocale::system()), title, compose);
}

QString QtPrinter::askFileName() {
    if (lastFolder_.isEmpty())
        lastFolder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(frontWindow(), "Print Report To A PDF File", existingFolder(lastFolder_),
                       "PDF File(*.pdf)");
    dialog.setObjectName("printFileDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("pdf");
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString fileName = dialog.selectedFiles().value(0);
    lastFolder_ = QFileInfo(fileName).path();
    return fileName;
}

} // namespace parabolt
