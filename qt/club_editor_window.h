#pragma once

#include "clubs/frm_club_params.h"
#include "qt/form_binding.h"
#include "qt/grid_widget.h"

#include <QDialog>
#include <memory>

class QGridLayout;
class QMenuBar;

namespace parabolt {

/// The window of the club editor, to be shown with `exec`.
class ClubEditorWindow : public QDialog {
    Q_OBJECT

public:
    explicit ClubEditorWindow(frmClubParams& clubEditor, QWidget* parent = nullptr);
    ~ClubEditorWindow() override;

    /// Asks about edits first, however the window is being closed.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QMenuBar* makeMenus();
    void makeText(QGridLayout& layout, const Label& label, const TextBox& box);
    void makeGrid(QGridLayout& layout, const Grid& grid, const TextBox& edit);
    void makeFoot(QGridLayout& layout);
    std::unique_ptr<GridBinding> bindGrid(Grid& grid, TextBox& edit);
    void bindComment();

    frmClubParams& clubEditor_;
    ClubForm& form_;
    std::unique_ptr<FormBinding> binding_;
    std::unique_ptr<GridBinding> irons_;
    std::unique_ptr<GridBinding> woods_;
};

} // namespace parabolt
