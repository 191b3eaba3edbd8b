// Properties that announce their changes, and events that handlers attach to.
#pragma once

#include <cassert>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "text/text.h"

namespace model {

class Control;

/// What a property holds, in the form scripts and views exchange.
using Value = std::variant<double, bool, Text>;

/// A named property of a control. Lives inside its control.
class PropertyBase {
public:
    PropertyBase(Control& owner, const char* name);
    PropertyBase(const PropertyBase&) = delete;
    PropertyBase& operator=(const PropertyBase&) = delete;

    std::string_view Name() const { return name_; }
    virtual Value Read() const = 0;
    /// Sets from outside the logic; false when the value is of the wrong kind.
    virtual bool Write(const Value& value) = 0;

protected:
    ~PropertyBase() = default;
    void Announce();

private:
    Control& owner_;
    const char* name_;
};

/// T is bool, int, double or Text. Assigning an equal value announces nothing.
template <class T>
class Property final : public PropertyBase {
public:
    Property(Control& owner, const char* name, T initial = {})
        : PropertyBase(owner, name), value_(std::move(initial)) {}

    operator const T&() const { return value_; }
    const T& operator()() const { return value_; }
    Property& operator=(T value) {
        if (!(value_ == value)) {
            value_ = std::move(value);
            Announce();
        }
        return *this;
    }

    Value Read() const override {
        if constexpr (std::is_same_v<T, int>) {
            return static_cast<double>(value_);
        } else {
            return value_;
        }
    }
    bool Write(const Value& value) override {
        if constexpr (std::is_same_v<T, int>) {
            if (const double* number = std::get_if<double>(&value)) {
                *this = static_cast<int>(*number);
                return true;
            }
            return false;
        } else {
            if (const T* same = std::get_if<T>(&value)) {
                *this = *same;
                return true;
            }
            return false;
        }
    }

private:
    T value_;
};

/// One handler, which only one subject may set; calling an event without one does nothing.
template <class... Arguments>
class Event {
public:
    template <class Handler>
    Event& operator=(Handler handler) {
        assert(!handler_ && "a second subject attaches to the same event");
        handler_ = std::move(handler);
        return *this;
    }
    Event& operator=(std::nullptr_t) {
        handler_ = nullptr;
        return *this;
    }
    /// The event without its handler, for another one in its place.
    Event& Anew() { return *this = nullptr; }
    /// False when nobody listens.
    bool operator()(Arguments... arguments) const {
        if (!handler_) {
            return false;
        }
        handler_(arguments...);
        return true;
    }
    explicit operator bool() const { return static_cast<bool>(handler_); }

private:
    std::function<void(Arguments...)> handler_;
};

}  // namespace model
