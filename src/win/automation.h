// Driving another program's automation object by the names of its methods.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "win/com.h"

namespace win {

// A value that goes to an automation object or comes from one.
class Variant {
 public:
    Variant() = default;
    explicit Variant(long number);
    explicit Variant(std::u16string_view text);  // of any length and with any character
    Variant(Variant&& other) noexcept : value_(std::exchange(other.value_, {})) {}
    Variant& operator=(Variant&&) = delete;
    ~Variant();

    // Throws win::Error when the value has no text form.
    std::u16string text() const;
    const VARIANT& raw() const { return value_; }
    VARIANT* out() { return &value_; }  // only while nothing is held

 private:
    VARIANT value_{};  // empty, as VariantInit would leave it
};

// Whether the program behind the ProgID is running already and says so.
bool IsAutomationRunning(const wchar_t* progId);

class AutomationObject {
 public:
    // Starts the program behind the ProgID. Nothing when it is not installed or does not start.
    static std::optional<AutomationObject> create(const wchar_t* progId);

    // Throws win::Error with the HRESULT when the object does not know the method, the method fails, or the
    // program has been too busy to take the call for some seconds. Until the method returns, messages of this
    // thread's windows are handled.
    template <typename... Arguments>
    Variant call(const wchar_t* method, const Arguments&... arguments) {
        std::array<VARIANT, sizeof...(arguments)> reversed{arguments.raw()...};
        std::reverse(reversed.begin(), reversed.end());
        return invoke(method, reversed.data(), static_cast<UINT>(reversed.size()));
    }

 private:
    explicit AutomationObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}
    Variant invoke(const wchar_t* method, VARIANT* reversedArguments, UINT count);

    ComPtr<IDispatch> object_;
};

}  // namespace win
