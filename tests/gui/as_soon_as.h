#pragma once

#include <QTimer>
#include <functional>

namespace parabolt::support {

/// Acts once, from inside an event loop, as soon as a condition holds; never if it never does, nor
/// after the end of `user`.
inline void asSoonAs(QObject& user, std::function<bool()> holds, std::function<void()> act) {
    auto* look = new QTimer(&user);
    QObject::connect(look, &QTimer::timeout, [look, holds, act] {
        if (!holds())
            return;
        look->stop();
        look->deleteLater();
        act();
    });
    look->start(0);
}

} // namespace parabolt::support
