// Stands in for the word processor that is driven as "Word.Basic": a COM server with one document.
//   standin_word LOG [ORDER]   writes each call as a line to LOG, and "released" when its caller has released
//   it. Orders:
//     each      serves callers one after the other; for the n-th of them the n-th call fails
//     ask       its spelling dialog waits for an answer
//     running   it is running already and registered as active; it rejects each call once before it takes it
//     window    it is running already and has a window, "OpusApp", which comes to the front for correcting
#include "support/standin_word.h"
#include "support/com_object.h"

#include <fstream>
#include <set>

namespace {

constexpr int kCalls = 12;  // in one check

struct Orders {
    std::string log;
    std::string order;
    int failAt = 0;
    HWND window = nullptr;
};

class Word final : public ComObject<IDispatch> {
 public:
    explicit Word(Orders orders) : orders_(std::move(orders)) {}
    ~Word() override {
        if (orders_.window && ::GetForegroundWindow() == orders_.window) log(L"still in front");
        log(L"released");
        if (orders_.order != "each" || orders_.failAt == kCalls) ::PostQuitMessage(0);
    }
    STDMETHOD(GetTypeInfoCount)(UINT*) override { return E_NOTIMPL; }
    STDMETHOD(GetTypeInfo)(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHOD(GetIDsOfNames)(REFIID, LPOLESTR* names, UINT, LCID, DISPID*) override {
        method_ = names[0];
        return S_OK;
    }
    STDMETHOD(Invoke)
    (DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* failure,
     UINT*) override {
        if (orders_.order == "running" && turnedAway_.insert(method_).second)
            return turnedAway_.size() % 2 ? RPC_E_CALL_REJECTED : RPC_E_SERVERCALL_RETRYLATER;
        std::wstring line = method_;
        std::wstring last;
        for (UINT i = parameters->cArgs; i-- > 0;) {
            VARIANT text{};
            ::VariantChangeType(&text, &parameters->rgvarg[i], 0, VT_BSTR);
            last.assign(text.bstrVal, ::SysStringLen(text.bstrVal));
            ::VariantClear(&text);
            line += L" " + last;
        }
        log(line);
        const std::wstring value = run(last);
        if (++calls_ == orders_.failAt) {
            failure->bstrDescription = ::SysAllocString(L"The stand-in was told to fail.");
            return DISP_E_EXCEPTION;
        }
        if (result) {
            result->vt = VT_BSTR;
            result->bstrVal = ::SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
        }
        return S_OK;
    }

 private:
    std::wstring run(const std::wstring& argument) {
        if (method_ == L"AppMinimize") ::ShowWindow(orders_.window, SW_MINIMIZE);
        if (method_ == L"Insert") document_ = argument + L'\r';
        if (method_ == L"ToolsSpelling") correct();
        if (method_ == L"SetDocumentVar") variable_ = argument;
        if (method_ == L"Selection") return document_;
        return method_ == L"GetDocumentVar" ? variable_ : L"";
    }

    void correct() {
        if (orders_.order == "ask")
            ::MessageBoxA(nullptr, "Correct it?", "Stand-in spelling", MB_OK | MB_SETFOREGROUND);
        ::ShowWindow(orders_.window, SW_RESTORE);
        ::SetForegroundWindow(orders_.window);
        std::erase(document_, L'\n');  // its paragraphs end with CR only
        for (std::size_t at = 0; (at = document_.find(L"teh", at)) != std::wstring::npos;)
            document_.replace(at, 3, L"the");
    }

    void log(const std::wstring& line) const {
        std::string bytes(line.size() * 3, '\0');
        bytes.resize(static_cast<std::size_t>(
            ::WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), bytes.data(),
                                  static_cast<int>(bytes.size()), nullptr, nullptr)));
        std::ofstream(orders_.log, std::ios::app | std::ios::binary) << bytes << '\n';
    }

    Orders orders_;
    int calls_ = 0;
    std::wstring method_, document_, variable_;
    std::set<std::wstring> turnedAway_;
};

HWND ShowOpusApp() {
    WNDCLASSW cls{};
    cls.lpszClassName = L"OpusApp";
    cls.lpfnWndProc = ::DefWindowProcW;
    ::RegisterClassW(&cls);
    return ::CreateWindowW(L"OpusApp", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                           nullptr, nullptr, nullptr);
}

}  // namespace

// "-Embedding", with which the system starts a server, is not an order.
int main(int argc, char** argv) {
    if (argc < 2) return 1;
    Orders orders{argv[1], argc > 2 ? argv[2] : ""};
    ::CoInitialize(nullptr);
    {
        ClassServer server(kWordClass, CLSCTX_LOCAL_SERVER, [&orders] {
            if (orders.order == "each") ++orders.failAt;
            return new Word(orders);
        });
        DWORD active = 0;
        if (orders.order == "running")
            ::RegisterActiveObject(&server, kWordClass, ACTIVEOBJECT_STRONG, &active);
        if (orders.order == "window") orders.window = ShowOpusApp();
        ::SetTimer(nullptr, 0, 60000, nullptr);  // ends the program when nobody calls
        MSG message{};
        while (::GetMessageA(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER)
            ::DispatchMessageA(&message);
        if (active != 0) ::RevokeActiveObject(active, nullptr);
    }
    ::CoUninitialize();
    return 0;
}
