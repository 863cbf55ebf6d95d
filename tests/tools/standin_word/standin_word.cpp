// Stands in for the word processor that is driven as "Word.Basic": a COM server with one document.
//   standin_word LOG [ORDERS]   serves its caller, and writes each call as a line to LOG. With the orders
//                               "each" it serves callers one after the other, the n-th of whom sees the n-th
//                               call fail; with "ask" its spelling dialog waits for an answer.
#include "support/standin_word.h"
#include "support/com_object.h"

#include <iterator>
#include <string>
#include <vector>

namespace {

const wchar_t* const kMethods[] = {L"AppMinimize",    L"FileNew",        L"Insert",        L"StartOfDocument",
                                   L"EndOfDocument",  L"ToolsSpelling",  L"EditSelectAll", L"Selection",
                                   L"SetDocumentVar", L"GetDocumentVar", L"FileCloseAll",  L"AppClose"};

struct Orders {
    std::string log;
    bool ask = false;
    bool each = false;
    int failAt = 0;
};

std::string Bytes(const std::wstring& wide) {
    std::string text(wide.size(), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                          static_cast<int>(text.size()), nullptr, nullptr);
    return text;
}

// Line ends are told apart in the log.
std::string Quoted(const std::wstring& wide) {
    std::string text;
    for (const char c : Bytes(wide))
        text += c == '\r' ? std::string("\\r") : c == '\n' ? std::string("\\n") : std::string(1, c);
    return text;
}

class Word final : public ComObject<IDispatch> {
 public:
    explicit Word(Orders orders) : orders_(std::move(orders)) {}
    ~Word() override {
        log("released");
        if (!orders_.each || orders_.failAt == static_cast<int>(std::size(kMethods))) ::PostQuitMessage(0);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        for (ids[0] = 0; ids[0] < static_cast<DISPID>(std::size(kMethods)); ++ids[0])
            if (::lstrcmpiW(names[0], kMethods[ids[0]]) == 0) return S_OK;
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* failure, UINT*) override {
        std::string line = Bytes(kMethods[id]);
        std::wstring last;
        for (UINT i = parameters->cArgs; i-- > 0;) {
            VARIANT text{};
            ::VariantChangeType(&text, &parameters->rgvarg[i], 0, VT_BSTR);
            last.assign(text.bstrVal, ::SysStringLen(text.bstrVal));
            ::VariantClear(&text);
            line += " " + Quoted(last);
        }
        log(line);
        if (++calls_ == orders_.failAt) {
            failure->bstrDescription = ::SysAllocString(L"The stand-in was told to fail.");
            return DISP_E_EXCEPTION;
        }
        const std::wstring value = run(kMethods[id], last);
        if (result) {
            result->vt = VT_BSTR;
            result->bstrVal = ::SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
        }
        return S_OK;
    }

 private:
    std::wstring run(const std::wstring& method, const std::wstring& argument) {
        if (method == L"FileNew") document_ = L"\r";
        if (method == L"Insert") insert(argument);
        if (method == L"ToolsSpelling") correct();
        if (method == L"EditSelectAll") selection_ = document_;
        if (method == L"SetDocumentVar") variable_ = argument;
        if (method == L"Selection") return selection_;
        return method == L"GetDocumentVar" ? variable_ : L"";
    }

    // Before the mark that ends the document; a paragraph ends with CR only.
    void insert(const std::wstring& text) {
        std::wstring paragraphs;
        for (const wchar_t c : text) {
            if (c != L'\n' || paragraphs.empty() || paragraphs.back() != L'\r') paragraphs += c;
        }
        document_.insert(document_.size() - 1, paragraphs);
    }

    void correct() {
        if (orders_.ask) ::MessageBoxA(nullptr, "Correct it?", "Stand-in spelling", MB_OK | MB_SETFOREGROUND);
        for (std::size_t at = 0; (at = document_.find(L"teh", at)) != std::wstring::npos;)
            document_.replace(at, 3, L"the");
    }

    void log(const std::string& line) const {
        const HANDLE file =
            ::CreateFileA(orders_.log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                          OPEN_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, (line + "\n").data(), static_cast<DWORD>(line.size() + 1), &written, nullptr);
        ::CloseHandle(file);
    }

    Orders orders_;
    int calls_ = 0;
    std::wstring document_;
    std::wstring selection_;
    std::wstring variable_;
};

}  // namespace

// "-Embedding", with which the system starts a server, is no order.
int main(int argc, char** argv) {
    if (argc < 2) return 1;
    const std::string order = argc > 2 ? argv[2] : "";
    Orders orders{argv[1], order == "ask", order == "each"};
    ::CoInitialize(nullptr);
    CLSID cls{};
    const std::string name = kStandinWordClass;
    ::CLSIDFromString(std::wstring(name.begin(), name.end()).c_str(), &cls);
    ComFactory factory([&orders] {
        if (orders.each) ++orders.failAt;
        return new Word(orders);
    });
    DWORD cookie = 0;
    ::CoRegisterClassObject(cls, &factory, CLSCTX_LOCAL_SERVER,
                            orders.each ? REGCLS_MULTIPLEUSE : REGCLS_SINGLEUSE, &cookie);
    ::SetTimer(nullptr, 0, 60000, nullptr);  // ends it when nobody calls
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER)
        ::DispatchMessageA(&message);
    ::CoRevokeClassObject(cookie);
    ::CoUninitialize();
    return 0;
}
