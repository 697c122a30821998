#include "qt/window_parts.h"

#include <QAction>
#include <QBoxLayout>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace parabolt {
namespace {

/// A field that doesn't take Ctrl+E from the commands of its window.
class NumberField : public QDoubleSpinBox {
protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->keyCombination() == (Qt::CTRL | Qt::Key_E)) {
            event->ignore();
            return true;
        }
        return QDoubleSpinBox::event(event);
    }
};

} // namespace

QAction* command(QMenu* menu, const QString& name, const QString& text, const QString& meaning,
                 const QKeySequence& key) {
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setMenuRole(QAction::NoRole);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? meaning : QString("%1 (%2)").arg(meaning, keys));
    menu->setToolTipsVisible(true);
    return action;
}

QToolButton* buttonOf(QAction* action) {
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLabel* textLabel(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QPushButton* pushButton(const QString& name, const QString& text) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QDoubleSpinBox* numberField(const QString& name, const QString& accessibleName,
                            const NumberRange& range) {
    auto* field = new NumberField;
    field->setObjectName(name);
    field->setAccessibleName(accessibleName);
    field->setToolTip(accessibleName);
    field->setLocale(QLocale::c());
    field->setKeyboardTracking(false);
    field->setDecimals(range.decimals);
    field->setRange(range.lowest, range.highest);
    field->setSingleStep(range.step);
    field->setSuffix(range.unit);
    return field;
}

void addLabelled(QBoxLayout* row, const QString& text, QWidget* widget) {
    auto* label = new QLabel(text);
    label->setBuddy(widget);
    row->addWidget(label);
    row->addWidget(widget);
}

QWidget* labelledGroup(std::initializer_list<std::pair<QString, QWidget*>> widgets) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins({});
    for (const auto& [text, widget] : widgets)
        addLabelled(row, text, widget);
    return group;
}

QString withoutMnemonic(QString text) {
    return text.replace('&', "&&");
}

} // namespace parabolt
