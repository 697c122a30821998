#pragma once

#include "controls/choices.h"
#include "controls/focus.h"
#include "controls/rich_text_box.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QCheckBox;
class QComboBox;
class QEvent;
class QLineEdit;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QWidget;

namespace parabolt {

/// Ties the controls of a form to the widgets and actions of its window that carry their names, and
/// the form's focus to the window's. Each direction passes on only what differs, so that a caret
/// never jumps while the user types.
///
/// A text box counts as left when the focus reaches another control of the window. So a message
/// box, a menu or another program that comes up in between leaves the edit alone, and a value is
/// judged once. Buttons and menu commands first take the focus to themselves or to the place where
/// commands settle it; where the field being edited is refused, the command doesn't run; only the
/// end of the program waits for nothing.
///
/// The click that brings the focus into a field selects its whole text, as Tab does. A click, a
/// drop or the wheel acts only on the widget that has the focus: where a refused field has kept it,
/// nothing of the press reaches the widget under the pointer.
///
/// Lets go of the controls when it dies; it must do so before they do.
class FormBinding : public QObject {
    Q_OBJECT

public:
    /// `settle` is the control that takes the focus before a menu command runs.
    FormBinding(QWidget& window, const ControlSet& controls, Focus& focus,
                Control* settle = nullptr);
    ~FormBinding() override;

    /// The widget that shows a control; null if it has none.
    QWidget* widget(const Control& control) const;
    /// For widgets that are bound elsewhere: ties only their focus to the control's.
    void followFocus(QWidget& widget, Control& control);
    /// Settles the field being edited before this bar takes the keyboard or opens a menu.
    void settleBefore(QMenuBar& menuBar);
    /// True if nothing is being edited any more that would be refused.
    [[nodiscard]] bool settle();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bind(Control& control);
    void bindText(TextBox& box, QLineEdit& edit);
    void bindOption(OptionButton& option, QRadioButton& radio);
    void bindCheck(CheckBox& check, QCheckBox& widget);
    void bindList(DropDownList& list, QComboBox& combo);
    void bindButton(Button& button, QPushButton& widget);
    void bindMenuItem(MenuItem& item);
    void bindTimer(Timer& timer);
    void bindProgress(ProgressBar& bar, QProgressBar& widget);
    void showState(const Control& control, QWidget& widget) const;
    void moveRealFocus();
    bool focusArrived(QObject* watched, Qt::FocusReason reason);
    bool refusedFocus(const QObject* watched) const;
    bool released(QObject* watched, Qt::MouseButton button);
    bool enterPressed(QObject* watched, bool again);
    void enterReleased(QObject* watched);

    QWidget& window_;
    const ControlSet& controls_;
    Focus& focus_;
    Control* settle_;
    QHash<const QObject*, Control*> controlOf_;
    QHash<const Control*, QPointer<QWidget>> widgetOf_;
    QPointer<QObject> enterPressedIn_; ///< where Enter went down, so that its release counts there
    QPointer<QObject> clickedInto_;    ///< what the mouse press under way has brought the focus to
    QPointer<QObject> refusedPressOn_; ///< whose mouse press must not act: its focus was refused
};

} // namespace parabolt
