#pragma once

#include "files/preferences.h"

#include <QSize>
#include <string>
#include <string_view>

class QAction;
class QSplitter;
class QWidget;

namespace parabolt {

class TableView;

/// How the user has left a window, in the preferences. What can't be remembered is as at first the
/// next time: no reason to stop anybody.
class WindowMemory {
public:
    /// `window` is the name under which it is remembered.
    WindowMemory(PreferencesStore& preferences, std::string_view window)
        : preferences_(preferences),
          window_(window) {}

    /// Size and place; the place is the desktop's choice until the window has had one.
    void restoreSize(QWidget& window, QSize usual) const;
    void restore(QSplitter& splitter, std::string_view key) const;
    void restore(TableView& table, std::string_view key) const;
    void restore(QAction& choice, std::string_view key) const;
    /// Those that it has while it isn't maximized.
    void rememberSize(const QWidget& window) const;
    void remember(const QSplitter& splitter, std::string_view key) const;
    void remember(const TableView& table, std::string_view key) const;
    void remember(const QAction& choice, std::string_view key) const;

private:
    std::string read(std::string_view key) const;
    void write(std::string_view key, const std::string& text) const;

    PreferencesStore& preferences_;
    std::string window_;
};

} // namespace parabolt
