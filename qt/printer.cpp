#include "qt/printer.h"

#include "controls/units.h"
#include "files/file_access.h"
#include "mainform/main_form.h"
#include "qt/dialogs.h"
#include "qt/file_dialog.h"
#include "qt/page_painter.h"
#include "qt/text.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibrary>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <thread>
#include <utility>

namespace parabolt {
namespace {

constexpr double kPdfMargin = 0.2; ///< inches; most printers reach that far
constexpr int kPdfResolution = 1200;
constexpr int kPatience = 200; ///< milliseconds in which a print server usually answers

/// Where people print on Letter, as the Unicode locale data have it.
constexpr std::array kLetterCountries{
    QLocale::Belize,       QLocale::Canada,     QLocale::Chile,       QLocale::Colombia,
    QLocale::CostaRica,    QLocale::ElSalvador, QLocale::Guatemala,   QLocale::Mexico,
    QLocale::Nicaragua,    QLocale::Panama,     QLocale::Philippines, QLocale::PuertoRico,
    QLocale::UnitedStates, QLocale::Venezuela};

PageSize pdfPage(QPageSize::PageSizeId paper) {
    const QSizeF upright = QPageSize(paper).size(QPageSize::Inch);
    return {upright.height(), upright.width(), upright.height() - 2 * kPdfMargin,
            upright.width() - 2 * kPdfMargin};
}

/// Turns a printer to landscape, with the corner of the paper as its origin: its own margins stay
/// those of the upright page.
PageSize turn(QPrinter& printer) {
    const PageSize page = turnedToLandscape(printer.pageLayout());
    printer.setFullPage(true);
    printer.setPageOrientation(QPageLayout::Landscape);
    return page;
}

/// Paints one page on a device whose origin is the corner of the paper; false if it refuses.
bool paint(QPagedPaintDevice& device, const PageSize& paper,
           const std::function<void(Page&)>& compose) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    PagePainter page = PagePainter::onPaper(painter, paper);
    compose(page);
    return painter.end();
}

/// The library that Qt prints through.
QLibrary& cups() {
    static QLibrary library("cups", 2);
    return library;
}

/// Asks the print server whether it has printers, as Qt does, but with the user interface alive.
/// The answer is no, too, when the library gives a silent server up.
std::shared_future<bool> askForPrinters() {
    struct Destination;
    using GetDestinations = int (*)(Destination**);
    using FreeDestinations = void (*)(int, Destination*);
    const auto get = reinterpret_cast<GetDestinations>(cups().resolve("cupsGetDests"));
    const auto free = reinterpret_cast<FreeDestinations>(cups().resolve("cupsFreeDests"));
    std::packaged_task<bool()> task([get, free] {
        if (get == nullptr || free == nullptr)
            return true; // Qt may know another way
        Destination* destinations = nullptr;
        const int count = get(&destinations);
        free(count, destinations);
        return count > 0;
    });
    std::shared_future<bool> printers = task.get_future();
    std::thread(std::move(task)).detach(); // outlives the user's patience
    return printers;
}

/// Whether the system's spooler took the job that was just handed over, or in its own words why
/// not. Qt drops this answer, but the library still has it.
Outcome<void, std::string> spoolerAnswer() {
    const auto lastError = reinterpret_cast<int (*)()>(cups().resolve("cupsLastError"));
    const auto description =
        reinterpret_cast<const char* (*)()>(cups().resolve("cupsLastErrorString"));
    constexpr int kFirstError = 0x400; // among the status codes of the Internet Printing Protocol
    if (lastError == nullptr || description == nullptr || lastError() < kFirstError)
        return {};
    const char* reason = description();
    return because(std::string(reason != nullptr ? reason : "unknown"));
}

Outcome<std::string, std::string> printOn(const QPrinterInfo& info, std::string_view title,
                                          const std::function<void(Page&)>& compose) {
    QPrinter printer(info, QPrinter::HighResolution);
    const PageSize page = turn(printer);
    printer.setDocName(toQt(title));
    printer.setCreator(QApplication::applicationName());
    const std::string name = "\"" + fromQt(info.printerName()) + "\"";
    const std::string refused = "The printer " + name + " doesn't take the page";
    if (!paint(printer, page, compose))
        return because(refused + ".");
    if (const auto taken = spoolerAnswer(); !taken)
        return because(refused + ": " + taken.why());
    return "The page has gone to the printer " + name + ".";
}

/// Waits for the print server. If it is slow a box says so, which the user may close to wait no
/// longer.
void waitFor(const std::shared_future<bool>& answer) {
    const auto answered = [&answer](int milliseconds) {
        return answer.wait_for(std::chrono::milliseconds(milliseconds)) ==
               std::future_status::ready;
    };
    if (answered(kPatience))
        return;
    QMessageBox box(QMessageBox::NoIcon, toQt(kApplicationTitle),
                    "Waiting for the print server.\n"
                    "Without it the page can go into a PDF file.",
                    QMessageBox::NoButton, frontWindow());
    box.setObjectName("printerWaitBox");
    box.addButton("&Go on without", QMessageBox::RejectRole);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &box, [&] {
        if (answered(0))
            box.done(QDialog::Accepted);
    });
    look.start(kPatience);
    box.exec();
}

} // namespace

QPageSize::PageSizeId usualPaper() {
    QString name;
    for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"})
        if (name.isEmpty())
            name = qEnvironmentVariable(variable);
    const QLocale locale = name.isEmpty() ? QLocale::system() : QLocale(name);
    const bool letter = std::find(kLetterCountries.begin(), kLetterCountries.end(),
                                  locale.territory()) != kLetterCountries.end();
    return letter ? QPageSize::Letter : QPageSize::A4;
}

PageSize turnedToLandscape(const QPageLayout& upright) {
    // Printers give their margins in whole points; in other units Qt would round them.
    const QSizeF paper = upright.pageSize().size(QPageSize::Point) / kPointsPerInch;
    const QMarginsF margins = upright.margins(QPageLayout::Point) / kPointsPerInch;
    return {paper.height(), paper.width(),
            paper.height() - 2 * std::max(margins.top(), margins.bottom()),
            paper.width() - 2 * std::max(margins.left(), margins.right())};
}

Outcome<void, std::string> writePdf(const QString& fileName, QPageSize::PageSizeId paper,
                                    std::string_view title,
                                    const std::function<void(Page&)>& compose) {
    const auto refuse = [&fileName](std::string_view why) {
        return because("The page can't be written to \"" + fromQt(QFileInfo(fileName).fileName()) +
                       "\": " + std::string(why));
    };
    QBuffer bytes; // the PDF's own writer wouldn't tell that the disk is full
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageLayout({QPageSize(paper), QPageLayout::Landscape, {}});
    writer.setResolution(kPdfResolution);
    writer.setTitle(toQt(title));
    writer.setCreator(QApplication::applicationName());
    if (!paint(writer, pdfPage(paper), compose))
        return refuse("The page can't be drawn");
    if (const auto written = replaceFile(fromQt(fileName), bytes.data().toStdString()); !written)
        return refuse(written.why().description);
    return {};
}

PageSize QtPrinter::paper() {
    const QPrinterInfo info = defaultPrinter();
    if (info.isNull())
        return pdfPage(usualPaper());
    QPrinter printer(info, QPrinter::HighResolution);
    return turn(printer);
}

Outcome<std::string, std::string> QtPrinter::print(std::string_view title,
                                                   const std::function<void(Page&)>& compose) {
    const QPrinterInfo info = defaultPrinter();
    if (!info.isNull())
        return printOn(info, title, compose);
    const QString fileName = askFileName();
    if (fileName.isEmpty())
        return std::string();
    if (const auto written = writePdf(fileName, usualPaper(), title, compose); !written)
        return because(written.why());
    return "The page is in the file " + fromQt(QDir::toNativeSeparators(fileName)) + ".";
}

/// No printer where there is none, and where the print server doesn't answer.
QPrinterInfo QtPrinter::defaultPrinter() {
    if (!printers_.valid())
        printers_ = askForPrinters();
    waitFor(printers_);
    if (printers_.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return {};
    const bool any = printers_.get();
    printers_ = {}; // the next time may bring another answer
    return any ? QPrinterInfo::defaultPrinter() : QPrinterInfo();
}

QString QtPrinter::askFileName() {
    if (lastFolder_.isEmpty())
        lastFolder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    NamingDialog dialog(frontWindow(), "Print To A PDF File", existingFolder(lastFolder_),
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
