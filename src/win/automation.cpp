#include "win/automation.h"

#include <new>

#include "win/message_loop.h"
#include "win/unicode.h"

namespace win {
namespace {

// A program that shows a dialog or prints turns calls away without having run them.
bool IsBusy(HRESULT result) {
    return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}

// Calls again while the program is busy.
template <typename Call>
void CheckCall(const Call& call) {
    constexpr DWORD kLongest = 10000;  // milliseconds
    constexpr DWORD kPause = 100;
    const DWORD start = ::GetTickCount();
    HRESULT result = call();
    while (IsBusy(result) && ::GetTickCount() - start < kLongest) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kPause, QS_ALLINPUT);
        if (!RunPending()) break;
        result = call();
    }
    CheckResult(result);
}

}  // namespace

bool IsAutomationRunning(const wchar_t* progId) {
    CLSID id{};
    IUnknown* object = nullptr;
    if (FAILED(::CLSIDFromProgID(progId, &id)) || FAILED(::GetActiveObject(id, nullptr, &object)))
        return false;
    return ComPtr<IUnknown>(object) ? true : false;
}

Variant::Variant(long number) : Variant() {
    value_.vt = VT_I4;
    value_.lVal = number;
}

Variant::Variant(std::u16string_view text) : Variant() {
    const std::wstring_view wide = AsWide(text);
    value_.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!value_.bstrVal) throw std::bad_alloc();
    value_.vt = VT_BSTR;
}

Variant::~Variant() {
    if (value_.vt != VT_EMPTY) ::VariantClear(&value_);
}

std::u16string Variant::text() const {
    Variant converted;
    CheckResult(::VariantChangeType(converted.out(), const_cast<VARIANT*>(&value_), 0, VT_BSTR));
    const BSTR wide = converted.value_.bstrVal;
    return std::u16string(AsUtf16({wide ? wide : L"", ::SysStringLen(wide)}));
}

std::optional<AutomationObject> AutomationObject::create(const wchar_t* progId) {
    CLSID id{};
    void* object = nullptr;
    if (FAILED(::CLSIDFromProgID(progId, &id)) ||
        FAILED(::CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, &object))) {
        return std::nullopt;
    }
    return AutomationObject(ComPtr<IDispatch>(static_cast<IDispatch*>(object)));
}

Variant AutomationObject::invoke(const wchar_t* method, VARIANT* reversedArguments, UINT count) {
    DISPID id = 0;
    auto* name = const_cast<OLECHAR*>(method);
    CheckCall([&] { return object_.get()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id); });
    DISPPARAMS parameters{reversedArguments, nullptr, count, 0};
    Variant result;
    CheckCall([&] {
        EXCEPINFO failure{};
        // Both flags, as Basic passes them for a call with a result: the object may take the method for a
        // property.
        const HRESULT done =
            object_.get()->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                  &parameters, result.out(), &failure, nullptr);
        ::SysFreeString(failure.bstrSource);
        ::SysFreeString(failure.bstrDescription);
        ::SysFreeString(failure.bstrHelpFile);
        return done;
    });
    return result;
}

}  // namespace win
