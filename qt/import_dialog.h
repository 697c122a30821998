#pragma once

#include "controls/services.h"
#include "fitting/import_review.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QWidget;

namespace parabolt {

class TableView;

/// The preview of a file of shots, called "importPreview": which rows come in, what is left out and
/// why; for a file that nobody knows what its columns mean, and which clubs are meant by texts that
/// tell none. To be executed; once it is accepted, the review holds what the user wants.
class ImportDialog : public QDialog {
    Q_OBJECT

public:
    ImportDialog(ImportReview& review, const QString& fileName, const ClubTables& tables,
                 const ClubAnswers& known, Desktop& desktop, QWidget* parent = nullptr);

    /// What the user said of texts that tell no club.
    ClubAnswers answers() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What a column means.
    struct ColumnFields {
        QComboBox* quantity;
        QComboBox* unit;
    };
    struct ClubField {
        std::string text;
        QComboBox* club;
    };

    QWidget* columnsPanel();
    QWidget* deviceRow();
    void addColumn(QGridLayout& cells, std::size_t column, const QString& heading);
    void showChoice();
    void offerUnits(std::size_t column);
    void nameDevice();
    void chooseColumns();
    void refresh();
    void fitNotes();
    void askForClubs();

    ImportReview& review_;
    const ClubTables& tables_;
    const ClubAnswers& known_;
    QLabel* device_;
    TableView* rows_ = nullptr;
    QLineEdit* name_ = nullptr;
    QCheckBox* computes_ = nullptr;
    std::vector<ColumnFields> columns_;
    QLabel* clubsTitle_;
    QScrollArea* clubsRoom_;
    std::vector<ClubField> clubs_;
    QPushButton* take_;
};

} // namespace parabolt
