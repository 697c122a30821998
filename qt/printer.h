#pragma once

#include "printing/printer.h"

#include <QPageSize>
#include <QString>

class QLocale;

namespace parabolt {

/// Prints on the system's default printer. Where there is none, asks for a file's name in a dialog
/// called "printFileDialog" and writes a PDF on the paper of the user's country.
class QtPrinter : public Printer {
public:
    PageSize paper() override;
    Outcome<void, std::string> print(std::string_view title,
                                     const std::function<void(Page&)>& compose) override;

private:
    QString askFileName();

    QString lastFolder_; ///< of the last file that was named; empty before
};

/// The paper on which people print in the country of the locale: Letter or A4.
QPageSize::PageSizeId usualPaper(const QLocale& locale);

/// Writes one landscape page as a PDF. The file appears, or replaces an older one, only once all of
/// it is written. Otherwise describes what went wrong.
Outcome<void, std::string> writePdf(const QString& fileName, QPageSize::PageSizeId paper,
                                    std::string_view title,
                                    const std::function<void(Page&)>& compose);

} // namespace parabolt
