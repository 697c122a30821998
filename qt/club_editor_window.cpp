#include "qt/club_editor_window.h"

#include "qt/text.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTableWidget>
#include <QValidator>

namespace parabolt {
namespace {

constexpr int kStartWidth = 940; ///< pixels
constexpr int kMargin = 10;
constexpr int kSpacing = 6;
constexpr int kCommentLines = 4; ///< that the comment shows at least

/// Holds what is typed or pasted to a number of characters. A character beyond the first plane
/// takes two units of a QString, so the line edit's own limit would count it twice.
class CharacterLimit : public QValidator {
public:
    CharacterLimit(std::size_t limit, QObject* parent)
        : QValidator(parent),
          limit_(static_cast<qsizetype>(limit)) {}

    State validate(QString& text, int& caret) const override {
        // What came in last stands in front of the caret; its end is what has no room.
        const int end = caret;
        for (auto excess = text.toUcs4().size() - limit_; caret > 0 && excess > 0; --excess)
            caret -= caret > 1 && text.at(caret - 1).isLowSurrogate() ? 2 : 1;
        text.remove(caret, end - caret);
        return Acceptable;
    }

private:
    qsizetype limit_;
};

void name(QObject& object, const Control& control) {
    object.setObjectName(toQt(control.name()));
}

QLabel* makeLabel(const Label& control) {
    auto* label = new QLabel(toQt(control.caption()));
    name(*label, control);
    return label;
}

QAction* makeAction(const MenuItem& item, QObject* parent, const QKeySequence& key = {}) {
    auto* action = new QAction(toQt(item.caption()), parent);
    name(*action, item);
    action->setShortcut(key);
    return action;
}

} // namespace

ClubEditorWindow::ClubEditorWindow(frmClubParams& clubEditor, QWidget* parent)
    : QDialog(parent),
      clubEditor_(clubEditor),
      form_(clubEditor.form) {
    setObjectName("frmClubParams");
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->setMenuBar(makeMenus());
    auto* layout = new QGridLayout;
    layout->setContentsMargins(kMargin, kMargin, kMargin, 0);
    layout->setSpacing(kSpacing);
    whole->addLayout(layout, 1);
    makeText(*layout, form_.lblDescription, form_.txtDescription);
    makeText(*layout, form_.lblIronsDes, form_.txtIronsDes);
    makeGrid(*layout, form_.GridIrons, form_.txtIronEdit);
    makeText(*layout, form_.lblWoodsDes, form_.txtWoodsDes);
    makeGrid(*layout, form_.GridWoods, form_.txtWoodEdit);
    makeFoot(*layout);
    auto* status = new QStatusBar;
    name(*status, form_.StatusBar1);
    whole->addWidget(status);

    binding_ = std::make_unique<FormBinding>(*this, form_.controls, form_.focus);
    irons_ = bindGrid(form_.GridIrons, form_.txtIronEdit);
    woods_ = bindGrid(form_.GridWoods, form_.txtWoodEdit);
    bindComment();
    form_.onCaption = [this] { setWindowTitle(toQt(form_.caption)); };
    form_.onCaption();
    form_.onUnload = [this] { reject(); };
    const QSize room = screen()->availableSize() * 0.95; // the title bar wants some
    resize(QSize(kStartWidth, sizeHint().height()).boundedTo(room));
}

ClubEditorWindow::~ClubEditorWindow() {
    form_.onUnload = nullptr;
    form_.onCaption = nullptr;
}

void ClubEditorWindow::reject() {
    if (clubEditor_.editor.queryUnload())
        QDialog::reject();
}

void ClubEditorWindow::keyPressEvent(QKeyEvent* event) {
    // Escape takes an entry back; it must not close the window with all others.
    if (event->key() != Qt::Key_Escape)
        QDialog::keyPressEvent(event);
}

QMenuBar* ClubEditorWindow::makeMenus() {
    auto* bar = new QMenuBar;
    QMenu* file = bar->addMenu(toQt(form_.mnuFile.caption()));
    name(*file->menuAction(), form_.mnuFile);
    file->addAction(makeAction(form_.mnuSave, this, QKeySequence::Save));
    file->addAction(makeAction(form_.mnuOpenClub, this, QKeySequence::Open));
    file->addSeparator();
    file->addAction(makeAction(form_.mnuExit, this));
    bar->addAction(makeAction(form_.mnuHelp, this, Qt::Key_F1));
    return bar;
}

void ClubEditorWindow::makeText(QGridLayout& layout, const Label& label, const TextBox& box) {
    QLabel* title = makeLabel(label);
    auto* edit = new QLineEdit;
    name(*edit, box);
    edit->setValidator(new CharacterLimit(box.maxLength(), edit));
    edit->setToolTip(QString("At most %1 characters").arg(box.maxLength()));
    title->setBuddy(edit);
    const int row = layout.rowCount();
    layout.addWidget(title, row, 0);
    layout.addWidget(edit, row, 1, 1, 2);
}

void ClubEditorWindow::makeGrid(QGridLayout& layout, const Grid& grid, const TextBox& edit) {
    auto* table = new QTableWidget;
    name(*table, grid);
    table->setAccessibleName(&grid == &form_.GridIrons ? "Irons" : "Woods");
    auto* line = new QLineEdit(table->viewport());
    name(*line, edit);
    line->setAccessibleName("Value of the cell");
    line->setFrame(false);
    line->setAlignment(Qt::AlignCenter);
    QPalette colours = line->palette();
    colours.setColor(QPalette::Base, QColor(kEditGreen.red, kEditGreen.green, kEditGreen.blue));
    colours.setColor(QPalette::Text, Qt::black);
    line->setPalette(colours);
    line->hide();
    layout.addWidget(table, layout.rowCount(), 0, 1, 3);
}

void ClubEditorWindow::makeFoot(QGridLayout& layout) {
    QLabel* title = makeLabel(form_.lblComment);
    auto* comment = new QPlainTextEdit;
    name(*comment, form_.txtComment);
    comment->setTabChangesFocus(true);
    comment->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    title->setBuddy(comment);

    auto* buttons = new QVBoxLayout;
    for (const Button* control : {&form_.Command3, &form_.Command2, &form_.Command1}) {
        auto* button = new QPushButton(toQt(control->caption()));
        name(*button, *control);
        button->setAutoDefault(false); // Enter belongs to the grids
        buttons->addWidget(button);
    }
    buttons->setSpacing(kSpacing);
    buttons->addStretch();

    const int row = layout.rowCount();
    comment->setMinimumHeight(kCommentLines * comment->fontMetrics().lineSpacing());
    layout.addWidget(title, row, 0, Qt::AlignTop);
    layout.addWidget(comment, row, 1);
    layout.addLayout(buttons, row, 2);
    layout.setRowStretch(row, 1);
    layout.setColumnStretch(1, 1);
}

std::unique_ptr<GridBinding> ClubEditorWindow::bindGrid(Grid& grid, TextBox& edit) {
    return std::make_unique<GridBinding>(grid, *findChild<QTableWidget*>(toQt(grid.name())), edit,
                                         *findChild<QLineEdit*>(toQt(edit.name())));
}

void ClubEditorWindow::bindComment() {
    auto* widget = findChild<QPlainTextEdit*>(toQt(form_.txtComment.name()));
    const auto shown = [widget] { return textOf(*widget).replace('\n', "\r\n"); };
    const auto show = [this, widget, shown] {
        const QString text = toQt(form_.txtComment.text());
        const QSignalBlocker quiet(widget);
        if (shown() != text)
            widget->setPlainText(text);
    };
    show();
    form_.txtComment.onViewChange = show;
    connect(widget, &QPlainTextEdit::textChanged, this, [this, shown, show] {
        form_.txtComment.onViewChange = nullptr; // the caret must stay where it is
        form_.txtComment.setText(fromQt(shown()));
        form_.txtComment.onViewChange = show;
    });
}

} // namespace parabolt
