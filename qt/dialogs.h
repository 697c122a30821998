#pragma once

#include "controls/services.h"

class QWidget;

namespace parabolt {

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
