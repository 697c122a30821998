#pragma once

#include "controls/services.h"

class QWidget;

namespace parabolt {

/// The window that a dialog belongs to: the active one; while none is, as between two dialogs or
/// with another program in front, the innermost modal one, the last active one that is no dialog,
/// or else the main form. Null before there is one.
QWidget* frontWindow();

/// Message boxes over the window in front, with the application's title.
class QtMessageBoxes : public MessageBoxes {
public:
    /// From now on it is known which window was in front. Needs a `QApplication`.
    QtMessageBoxes();
    void show(std::string_view message) override;
    bool ask(std::string_view question) override;
    Answer askOrCancel(std::string_view question) override;
};

/// The event loop of the application.
class QtEventLoop : public EventLoop {
public:
    void yield() override;
};

} // namespace parabolt
