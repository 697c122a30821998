#include "qt/form_binding.h"

#include "qt/text.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <utility>

namespace parabolt {

namespace {

/// Length in bytes of the first characters of a text, for positions that Qt counts in UTF-16.
std::size_t bytes(const QString& text, qsizetype characters) {
    return static_cast<std::size_t>(text.left(characters).toUtf8().size());
}

int characters(std::string_view utf8, std::size_t bytes) {
    return static_cast<int>(toQt(utf8.substr(0, bytes)).size());
}

bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

FormBinding::FormBinding(QWidget& window, const ControlSet& controls, Focus& focus, Control* settle)
    : window_(window),
      controls_(controls),
      focus_(focus),
      settle_(settle) {
    for (Control* control : controls.all())
        bind(*control);
    focus_.onMove = [this] { moveRealFocus(); };
}

FormBinding::~FormBinding() {
    focus_.onMove = nullptr;
    for (Control* control : controls_.all())
        control->onViewChange = nullptr;
}

QWidget* FormBinding::widget(const Control& control) const {
    return widgetOf_.value(&control);
}

bool FormBinding::settle() {
    return settle_ == nullptr || focus_.give(*settle_);
}

void FormBinding::bind(Control& control) {
    if (auto* item = dynamic_cast<MenuItem*>(&control))
        return bindMenuItem(*item);
    if (auto* timer = dynamic_cast<Timer*>(&control))
        return bindTimer(*timer);
    auto* widget = window_.findChild<QWidget*>(toQt(control.name()));
    if (widget == nullptr)
        return;
    followFocus(*widget, control);
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        bindText(dynamic_cast<TextBox&>(control), *edit);
    else if (auto* radio = qobject_cast<QRadioButton*>(widget))
        bindOption(dynamic_cast<OptionButton&>(control), *radio);
    else if (auto* check = qobject_cast<QCheckBox*>(widget))
        bindCheck(dynamic_cast<CheckBox&>(control), *check);
    else if (auto* combo = qobject_cast<QComboBox*>(widget))
        bindList(dynamic_cast<DropDownList&>(control), *combo);
    else if (auto* push = qobject_cast<QPushButton*>(widget))
        bindButton(dynamic_cast<Button&>(control), *push);
    else if (auto* progress = qobject_cast<QProgressBar*>(widget))
        bindProgress(dynamic_cast<ProgressBar&>(control), *progress);
    else
        control.onViewChange = [this, &control, widget] {
            showState(control, *widget);
            widget->update();
        };
    if (control.onViewChange)
        control.onViewChange();
}

void FormBinding::followFocus(QWidget& widget, Control& control) {
    controlOf_.insert(&widget, &control);
    widgetOf_.insert(&control, &widget);
    if (!control.takesFocus())
        return;
    widget.installEventFilter(this);
    if (const auto* area = qobject_cast<QAbstractScrollArea*>(&widget))
        area->viewport()->installEventFilter(this); // which gets what the mouse does
}

void FormBinding::showState(const Control& control, QWidget& widget) const {
    if (widget.isEnabledTo(widget.parentWidget()) != control.enabled())
        widget.setEnabled(control.enabled());
    if (widget.isHidden() == control.visible())
        widget.setVisible(control.visible());
}

void FormBinding::bindText(TextBox& box, QLineEdit& edit) {
    box.onViewChange = [this, &box, &edit] {
        showState(box, edit);
        const QString text = toQt(box.text());
        if (edit.text() != text)
            edit.setText(text);
        const int start = characters(box.text(), box.selStart());
        const int length = characters(box.text(), box.selStart() + box.selLength()) - start;
        // Out of focus a selection would only look as if the field were being edited. The window
        // itself may be inactive still, behind a message box that is about to go.
        if (window_.focusWidget() != &edit) {
            edit.setCursorPosition(0); // a long number shows its first digits
            return;
        }
        if (length == 0 && (edit.hasSelectedText() || edit.cursorPosition() != start))
            edit.setCursorPosition(start);
        else if (length > 0 && (edit.selectionStart() != start || edit.selectionLength() != length))
            edit.setSelection(start, length);
    };
    const auto takeSelection = [this, &box, &edit] {
        if (window_.focusWidget() != &edit || fromQt(edit.text()) != box.text())
            return;
        const int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
        const std::size_t from = bytes(edit.text(), start);
        const std::size_t to = bytes(edit.text(), start + edit.selectionLength());
        if (from != box.selStart() || to - from != box.selLength())
            box.setSelection(from, to - from);
    };
    connect(&edit, &QLineEdit::textEdited, this, [&box, &edit, takeSelection](const QString& text) {
        // The box puts its caret at the start: let the view's stand, unless a handler changed the
        // text.
        const auto show = std::exchange(box.onViewChange, nullptr);
        box.setText(fromQt(text));
        takeSelection();
        box.onViewChange = show;
        if (fromQt(edit.text()) != box.text())
            show();
    });
    connect(&edit, &QLineEdit::selectionChanged, this, takeSelection);
    connect(&edit, &QLineEdit::cursorPositionChanged, this, takeSelection);
}

void FormBinding::bindOption(OptionButton& option, QRadioButton& radio) {
    option.onViewChange = [this, &option, &radio] {
        showState(option, radio);
        // Tab enters a group at its selected button.
        radio.setFocusPolicy(option.selected() ? Qt::StrongFocus : Qt::ClickFocus);
        // Qt never takes the mark from the checked button of an exclusive group: the next one does.
        if (option.selected() && !radio.isChecked())
            radio.setChecked(true);
    };
    connect(&radio, &QRadioButton::toggled, this, [&option](bool checked) {
        if (checked)
            option.select();
    });
}

void FormBinding::bindCheck(CheckBox& check, QCheckBox& widget) {
    check.onViewChange = [this, &check, &widget] {
        showState(check, widget);
        widget.setChecked(check.checked());
    };
    connect(&widget, &QCheckBox::toggled, this,
            [&check](bool checked) { check.setChecked(checked); });
}

void FormBinding::bindList(DropDownList& list, QComboBox& combo) {
    list.onViewChange = [this, &list, &combo] {
        showState(list, combo);
        QStringList items;
        for (const std::string& item : list.items())
            items << toQt(item);
        QStringList shown;
        for (int i = 0; i < combo.count(); ++i)
            shown << combo.itemText(i);
        if (shown != items) {
            combo.clear();
            combo.addItems(items);
        }
        combo.setCurrentIndex(list.listIndex());
    };
    connect(&combo, &QComboBox::activated, this, [&list](int index) { list.select(index); });
}

void FormBinding::bindButton(Button& button, QPushButton& widget) {
    button.onViewChange = [this, &button, &widget] { showState(button, widget); };
    connect(&widget, &QPushButton::clicked, this, [this, &button] {
        // A mnemonic or a shortcut presses a button that hasn't the focus.
        if (focus_.give(button))
            button.Click();
    });
}

void FormBinding::bindMenuItem(MenuItem& item) {
    auto* action = window_.findChild<QAction*>(toQt(item.name()));
    if (action == nullptr)
        return;
    item.onViewChange = [&item, action] {
        action->setText(toQt(item.caption()));
        action->setEnabled(item.enabled());
        action->setVisible(item.visible());
    };
    item.onViewChange();
    if (const QMenu* menu = action->menu())
        connect(menu, &QMenu::aboutToShow, this, [&item] { item.Click(); });
    else
        connect(action, &QAction::triggered, this, [this, &item] {
            if (item.first() == MenuItem::First::WaitsForNothing || settle())
                item.Click();
        });
}

void FormBinding::bindTimer(Timer& timer) {
    auto* clock = new QTimer(&window_);
    clock->setObjectName(toQt(timer.name()));
    clock->setTimerType(Qt::PreciseTimer);
    timer.onViewChange = [&timer, clock] {
        if (clock->interval() != timer.interval())
            clock->setInterval(timer.interval());
        if (timer.enabled() && !clock->isActive())
            clock->start();
        else if (!timer.enabled())
            clock->stop();
    };
    timer.onViewChange();
    connect(clock, &QTimer::timeout, this, [&timer] { timer.Tick(); });
}

void FormBinding::bindProgress(ProgressBar& bar, QProgressBar& widget) {
    widget.setRange(bar.least(), bar.greatest());
    bar.onViewChange = [&bar, &widget] { widget.setValue(bar.value()); };
}

void FormBinding::settleBefore(QMenuBar& menuBar) {
    menuBar.installEventFilter(this);
}

void FormBinding::moveRealFocus() {
    if (focus_.active() == nullptr)
        return;
    // A menu bar that is being walked through by keys keeps the real focus, unless a field is
    // refused.
    if (focus_.active() == settle_ &&
        qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr)
        return;
    QWidget* target = widget(*focus_.active());
    if (target == nullptr)
        return;
    if (!target->hasFocus())
        target->setFocus(Qt::OtherFocusReason);
    if (focus_.active()->onViewChange)
        focus_.active()->onViewChange();
}

bool FormBinding::eventFilter(QObject* watched, QEvent* event) {
    if (qobject_cast<QMenuBar*>(watched) != nullptr) {
        const bool opens = event->type() == QEvent::MouseButtonPress ||
                           event->type() == QEvent::Shortcut || event->type() == QEvent::KeyPress ||
                           event->type() == QEvent::FocusIn; // by Alt alone
        return opens && !settle();
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        return focusArrived(watched, static_cast<QFocusEvent*>(event)->reason());
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        refusedPressOn_ = refusedFocus(watched) ? watched : nullptr;
        return refusedPressOn_ != nullptr;
    case QEvent::MouseButtonRelease:
        return released(watched, static_cast<QMouseEvent*>(event)->button());
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return refusedFocus(watched);
    case QEvent::Wheel: // over a list that only happens to lie under the pointer
        if (qobject_cast<QComboBox*>(watched) == nullptr || !refusedFocus(watched))
            return false;
        event->ignore(); // what lies around it may scroll
        return true;
    case QEvent::KeyPress: {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (isEnter(*press))
            return enterPressed(watched, press->isAutoRepeat());
        // A mnemonic without a control that answers it is no text.
        return press->modifiers() == Qt::AltModifier && !press->text().isEmpty();
    }
    case QEvent::KeyRelease: {
        const auto* release = static_cast<QKeyEvent*>(event);
        if (isEnter(*release) && !release->isAutoRepeat())
            enterReleased(watched);
        return false;
    }
    default:
        return false;
    }
}

bool FormBinding::focusArrived(QObject* watched, Qt::FocusReason reason) {
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return false;
    Control* control = controlOf_.value(watched);
    if (control != nullptr && !focus_.give(*control))
        return true; // a field on the way has kept the focus
    clickedInto_ = reason == Qt::MouseFocusReason ? watched : nullptr;
    return false;
}

/// True if the focus would have come with a press on this widget, but is elsewhere.
bool FormBinding::refusedFocus(const QObject* watched) const {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (const QWidget* proxy = widget->focusProxy())
        widget = proxy;
    return (widget->focusPolicy() & Qt::ClickFocus) != 0 && window_.focusWidget() != widget;
}

/// True if the widget must not see the release: it belongs to a refused press, or would place the
/// caret into the text that it selects.
bool FormBinding::released(QObject* watched, Qt::MouseButton button) {
    const bool bringsFocus = std::exchange(clickedInto_, nullptr) == watched;
    if (std::exchange(refusedPressOn_, nullptr) == watched)
        return true;
    auto* edit = qobject_cast<QLineEdit*>(watched);
    const bool dragged = edit != nullptr && edit->hasSelectedText();
    if (edit == nullptr || !bringsFocus || button != Qt::LeftButton || dragged)
        return false;
    edit->selectAll();
    return true;
}

/// True if the widget must not see the key. A button acts on the release, as fields do: a key held
/// down would go on to answer the question that the button asks.
bool FormBinding::enterPressed(QObject* watched, bool again) {
    if (!again)
        enterPressedIn_ = watched;
    return qobject_cast<QPushButton*>(watched) != nullptr;
}

void FormBinding::enterReleased(QObject* watched) {
    // The release of an Enter that closed a message box isn't one of this control.
    if (std::exchange(enterPressedIn_, nullptr) != watched)
        return;
    if (auto* button = qobject_cast<QPushButton*>(watched))
        button->click();
    else if (const auto* box = dynamic_cast<TextBox*>(controlOf_.value(watched)))
        box->KeyUp(keys::kEnter);
}

} // namespace parabolt
