#pragma once

#include "controls/services.h"
#include "printing/printer.h"
#include "printing/sheet.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace parabolt {

class PageSheet;

/// Shows a sheet as it will be printed, lets the user fill in its fields, and prints it. Called
/// "sheetPreview", its fields "sheetPlayer", "sheetFitter", "sheetDate" and "sheetNote"; to be
/// executed.
class SheetDialog : public QDialog {
    Q_OBJECT

public:
    /// Where the fields have no date, that of `now`, as "2026-11-23 10:32", is suggested.
    SheetDialog(SheetContent content, std::string_view now, Printer& printer,
                MessageBoxes& messages, QWidget* parent = nullptr);

    /// As the user has left them. A date that is only suggested is none: later it will be another.
    SheetFields fields() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLineEdit* field(const char* name, std::string SheetFields::*text);
    void fitPage();
    void print();

    SheetContent content_;
    std::string today_;
    Printer& printer_;
    MessageBoxes& messages_;
    PageSize page_; ///< in inches of the layout
    PreviewScale scale_;
    QWidget* room_; ///< for the page
    PageSheet* sheet_;
    QLabel* told_; ///< where the last page went
};

} // namespace parabolt
