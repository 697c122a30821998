#pragma once

#include "controls/services.h"

class QWidget;

namespace parabolt {

/// The window that a dialog belongs to: the active one; while another program is in front, the
/// innermost modal one or else the main form. Null before there is one.
QWidget* frontWindow();

/// Message boxes over the window in front, with the application's title.
class QtMessageBoxes : public MessageBoxes {
public:
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
