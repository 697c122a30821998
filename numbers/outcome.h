#pragma once

#include <type_traits>
#include <utility>
#include <variant>

namespace parabolt {

/// Why there is no value, on its way into an outcome: `return because(Fault::Overflow);`
template <class Why>
struct Because {
    Why why;
};

template <class Why>
Because<std::decay_t<Why>> because(Why&& why) {
    return {std::forward<Why>(why)};
}

/// A value, or why there is none. Ask first, like a pointer: `if (outcome) use(*outcome);`, and
/// `outcome.why()` only where there is no value.
template <class Value, class Why>
class [[nodiscard]] Outcome {
public:
    Outcome(Value value) : content_(std::in_place_index<0>, std::move(value)) {}
    Outcome(Because<Why> because) : content_(std::in_place_index<1>, std::move(because.why)) {}

    explicit operator bool() const { return content_.index() == 0; }
    Value& operator*() { return std::get<0>(content_); }
    const Value& operator*() const { return std::get<0>(content_); }
    Value* operator->() { return &**this; }
    const Value* operator->() const { return &**this; }
    const Why& why() const { return std::get<1>(content_); }

private:
    std::variant<Value, Why> content_;
};

/// Done, or why not.
template <class Why>
class [[nodiscard]] Outcome<void, Why> {
public:
    Outcome() = default;
    Outcome(Because<Why> because) : why_(std::in_place_index<1>, std::move(because.why)) {}

    explicit operator bool() const { return why_.index() == 0; }
    const Why& why() const { return std::get<1>(why_); }

private:
    std::variant<std::monostate, Why> why_;
};

} // namespace parabolt
