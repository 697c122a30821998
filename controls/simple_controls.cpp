#include "controls/simple_controls.h"

namespace parabolt {

void CaptionedControl::changeCaption(std::string caption) {
    if (caption_ == caption)
        return;
    caption_ = std::move(caption);
    viewChanged();
}

void Frame::setWidth(double twips) {
    width_ = twips;
    viewChanged();
}

Timer::Timer(ControlSet& form, std::string_view name, int intervalMs)
    : Control(form, name),
      intervalMs_(intervalMs) {
    setEnabled(false);
}

void Timer::setInterval(int milliseconds) {
    intervalMs_ = milliseconds;
    viewChanged();
}

ProgressBar::ProgressBar(ControlSet& form, std::string_view name, int least, int greatest)
    : Control(form, name),
      least_(least),
      greatest_(greatest),
      value_(least) {}

void ProgressBar::setValue(int value) {
    value_ = value;
    viewChanged();
}

} // namespace parabolt
