#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QBoxLayout;
class QDoubleSpinBox;
class QLabel;
class QMenu;
class QPushButton;
class QWidget;

namespace parabolt {

// Parts of the windows that are no forms, with their names.

QAction* menuAction(QMenu* menu, const QString& name, const QString& text,
                    const QKeySequence& key = {}, const QString& tip = {});

/// A text that wraps and can be selected.
QLabel* textLabel(const QString& name);

QPushButton* pushButton(const QString& name, const QString& text);

/// A field for a number with a point, whatever the locale, which takes what is typed when it is
/// left.
struct NumberRange {
    double lowest;
    double highest;
    double step;
    int decimals;
};
QDoubleSpinBox* numberField(const QString& name, const QString& accessibleName,
                            const NumberRange& range);

/// Puts a widget into a row, behind a label whose underlined letter leads to it.
void addLabelled(QBoxLayout* row, const QString& text, QWidget* widget);

} // namespace parabolt
