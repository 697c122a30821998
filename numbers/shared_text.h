#pragma once

#include <memory>
#include <string>
#include <utility>

namespace parabolt {

/// A text that never changes: copies share it, and a copy compares with its original at no cost,
/// however long the text is.
class SharedText {
public:
    SharedText() = default;
    SharedText(std::string text) : text_(std::make_shared<const std::string>(std::move(text))) {}
    SharedText(const char* text) : SharedText(std::string(text)) {}

    const std::string& text() const {
        static const std::string kEmpty;
        return text_ == nullptr ? kEmpty : *text_;
    }

    friend bool operator==(const SharedText& one, const SharedText& other) {
        return one.text_ == other.text_ || one.text() == other.text();
    }

private:
    std::shared_ptr<const std::string> text_;
};

} // namespace parabolt
