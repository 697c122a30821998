#include "qt/form_binding.h"

#include "qt/text.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
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
    if (control.takesFocus())
        widget.installEventFilter(this);
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
                           event->type() == QEvent::Shortcut || event->type() == QEvent::KeyPress;
        return opens && !settle();
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        return focusArrived(watched, static_cast<QFocusEvent*>(event)->reason());
    case QEvent::MouseButtonPress:
        return std::exchange(refusedPressOn_, nullptr) == watched;
    case QEvent::Wheel: // over a list that only happens to lie under the pointer
        if (qobject_cast<QComboBox*>(watched) == nullptr || window_.focusWidget() == watched)
            return false;
        event->ignore(); // what lies around it may scroll
        return true;
    case QEvent::KeyPress: {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter)
            enterPressedIn_ = watched;
        // A mnemonic without a control that answers it is no text.
        return press->modifiers() == Qt::AltModifier && !press->text().isEmpty();
    }
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            keyReleased(watched, static_cast<QKeyEvent*>(event)->key());
        return false;
    default:
        return false;
    }
}

bool FormBinding::focusArrived(QObject* watched, Qt::FocusReason reason) {
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return false;
    Control* control = controlOf_.value(watched);
    if (control == nullptr || focus_.give(*control))
        return false;
    // A field on the way has kept the focus: the widget must not act on the click that brought it.
    if (reason == Qt::MouseFocusReason) {
        refusedPressOn_ = watched;
        QTimer::singleShot(0, this, [this] { refusedPressOn_ = nullptr; });
    }
    return true;
}

void FormBinding::keyReleased(QObject* watched, int key) {
    const auto* box = dynamic_cast<TextBox*>(controlOf_.value(watched));
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    // The release of an Enter that closed a message box isn't one of this field.
    if (box == nullptr || !enter || std::exchange(enterPressedIn_, nullptr) != watched)
        return;
    box->KeyUp(keys::kEnter);
}

} // namespace parabolt
