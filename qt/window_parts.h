#pragma once

#include "shots/input_limits.h"

#include <QKeySequence>
#include <QString>
#include <initializer_list>
#include <utility>

class QAction;
class QBoxLayout;
class QDoubleSpinBox;
class QLabel;
class QMenu;
class QPushButton;
class QToolButton;
class QWidget;

namespace parabolt {

// Parts of the windows that are no forms, with their names.

/// A command of a menu; its tip tells the meaning and the key.
QAction* command(QMenu* menu, const QString& name, const QString& text, const QString& meaning,
                 const QKeySequence& key = {});
/// A button for a command, which the Tab key reaches.
QToolButton* buttonOf(QAction* action);

/// A text that wraps and can be selected.
QLabel* textLabel(const QString& name);

QPushButton* pushButton(const QString& name, const QString& text);

/// What a field for a number takes, and how it shows it.
struct NumberRange {
    double lowest;
    double highest;
    double step;
    int decimals;
    const char* unit = ""; ///< behind the number, with a blank in front
};
/// With the limits of an input.
constexpr NumberRange rangeOf(const InputLimits& limits, double step, int decimals,
                              const char* unit) {
    return {limits.lowest, limits.highest, step, decimals, unit};
}
/// A field for a number with a point, whatever the locale, which takes what is typed when it is
/// left. Ctrl+E is left to the window, though it leads to the end of a line elsewhere.
QDoubleSpinBox* numberField(const QString& name, const QString& accessibleName,
                            const NumberRange& range);

/// Puts a widget into a row, behind a label whose underlined letter leads to it.
void addLabelled(QBoxLayout* row, const QString& text, QWidget* widget);
/// Labelled widgets side by side as one widget, which no layout parts.
QWidget* labelledGroup(std::initializer_list<std::pair<QString, QWidget*>> widgets);

/// A text in which no letter is underlined, whatever stands in it.
QString withoutMnemonic(QString text);

} // namespace parabolt
