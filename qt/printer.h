#pragma once

#include "printing/printer.h"

#include <QPageSize>
#include <QString>
#include <future>

class QPageLayout;
class QPrinterInfo;

namespace parabolt {

/// Prints on the system's default printer. Where there is none, asks for a file's name in a dialog
/// called "printFileDialog" and writes a PDF on the paper of the user's country. While the print
/// server keeps silent a box called "printerWaitBox" says so; a user who waits no longer goes on as
/// without a printer.
class QtPrinter : public Printer {
public:
    PageSize paper() override;
    Outcome<std::string, std::string> print(std::string_view title,
                                            const std::function<void(Page&)>& compose) override;

private:
    QPrinterInfo defaultPrinter();
    QString askFileName();

    std::shared_future<bool> printers_; ///< whether there are any; valid while the server is asked
    QString lastFolder_;                ///< of the last file that was named; empty before
};

/// The paper on which people print in the user's country: Letter or A4. LC_ALL tells the country,
/// else LC_PAPER, else LANG.
QPageSize::PageSizeId usualPaper();

/// A printer's upright page, turned to landscape. Printers turn it to one side or the other, so of
/// each two opposite margins the wider one is kept on both sides.
PageSize turnedToLandscape(const QPageLayout& upright);

/// Writes one landscape page as a PDF. The file appears, or replaces an older one, only once all of
/// it is written. Otherwise describes what went wrong.
Outcome<void, std::string> writePdf(const QString& fileName, QPageSize::PageSizeId paper,
                                    std::string_view title,
                                    const std::function<void(Page&)>& compose);

} // namespace parabolt
