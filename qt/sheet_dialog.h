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
    SheetDialog(SheetContent content, Printer& printer, MessageBoxes& messages,
                QWidget* parent = nullptr);

    /// As the user has left them.
    const SheetFields& fields() const { return content_.fields; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLineEdit* field(const char* name, std::string SheetFields::*text);
    void fitPage();
    void print();

    SheetContent content_;
    Printer& printer_;
    MessageBoxes& messages_;
    PageSize page_; ///< in inches of the layout
    PreviewScale scale_;
    QWidget* room_; ///< for the page
    PageSheet* sheet_;
    QLabel* told_; ///< where the last page went
};

} // namespace parabolt
