// Stands in for the word processor that is driven as "Word.Basic": a COM server with one document.
//   standin_word /register LOG [FAIL]   makes it the server of that name. It writes each call as a line to
//   LOG,
//                                       and call number FAIL, from 1, fails. With "each" for FAIL it serves
//                                       its callers one after the other, the n-th of whom sees the n-th call
//                                       fail; with "ask" its spelling dialog waits for an answer.
//   standin_word /unregister
#include <windows.h>

#include <ole2.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr CLSID kClass = {0x5C5A5D0E, 0x2A53, 0x4B0A, {0x9C, 0x1B, 0x5B, 0x37, 0x2E, 0x64, 0x61, 0xD4}};
constexpr char kClassText[] = "{5C5A5D0E-2A53-4B0A-9C1B-5B372E6461D4}";
constexpr wchar_t kWrong[] = L"teh";
constexpr wchar_t kRight[] = L"the";

const wchar_t* const kMethods[] = {L"AppMinimize",    L"FileNew",        L"Insert",        L"StartOfDocument",
                                   L"EndOfDocument",  L"ToolsSpelling",  L"EditSelectAll", L"Selection",
                                   L"SetDocumentVar", L"GetDocumentVar", L"FileCloseAll",  L"AppClose"};

struct Orders {
    std::string log;
    int failAt = 0;
    bool ask = false;
    bool each = false;
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

class Word final : public IDispatch {
 public:
    explicit Word(Orders orders) : orders_(std::move(orders)) {}
    virtual ~Word() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            const bool more = orders_.each && orders_.failAt < static_cast<int>(std::size(kMethods));
            log("released");
            delete this;
            if (!more) ::PostQuitMessage(0);
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        for (std::size_t i = 0; i < std::size(kMethods); ++i) {
            if (::lstrcmpiW(names[0], kMethods[i]) == 0) {
                ids[0] = static_cast<DISPID>(i);
                return S_OK;
            }
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* failure, UINT*) override {
        std::vector<std::wstring> arguments;
        for (UINT i = parameters->cArgs; i-- > 0;) {
            VARIANT text;
            ::VariantInit(&text);
            ::VariantChangeType(&text, &parameters->rgvarg[i], 0, VT_BSTR);
            arguments.emplace_back(text.bstrVal, ::SysStringLen(text.bstrVal));
            ::VariantClear(&text);
        }
        const std::wstring method = kMethods[id];
        std::string line = Bytes(method);
        for (const std::wstring& argument : arguments) line += " " + Quoted(argument);
        log(line);
        if (++calls_ == orders_.failAt) {
            failure->wCode = 1001;
            failure->bstrSource = ::SysAllocString(L"Word.Basic");
            failure->bstrDescription = ::SysAllocString(L"The stand-in was told to fail.");
            return DISP_E_EXCEPTION;
        }
        std::wstring value;
        if (!run(method, arguments, value)) return DISP_E_BADPARAMCOUNT;
        if (result) {
            result->vt = VT_BSTR;
            result->bstrVal = ::SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
        }
        return S_OK;
    }

 private:
    bool run(const std::wstring& method, const std::vector<std::wstring>& arguments, std::wstring& value) {
        const std::size_t wanted = method == L"SetDocumentVar" ? 2
                                   : method == L"Insert" || method == L"EndOfDocument" ||
                                           method == L"GetDocumentVar" || method == L"FileCloseAll"
                                       ? 1
                                       : 0;
        if (arguments.size() != wanted) return false;
        if (method == L"FileNew") document_ = L"\r";
        if (method == L"Insert") insert(arguments[0]);
        if (method == L"ToolsSpelling") correct();
        if (method == L"EditSelectAll") selection_ = document_;
        if (method == L"Selection") value = selection_;
        if (method == L"SetDocumentVar") variable_ = arguments[1];
        if (method == L"GetDocumentVar") value = variable_;
        return true;
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
        for (std::size_t at = document_.find(kWrong); at != std::wstring::npos;
             at = document_.find(kWrong, at + 1)) {
            document_.replace(at, 3, kRight);
        }
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
    ULONG references_ = 0;
    int calls_ = 0;
    std::wstring document_;
    std::wstring selection_;
    std::wstring variable_;
};

class Factory final : public IClassFactory {
 public:
    explicit Factory(Orders orders) : orders_(std::move(orders)) {}
    virtual ~Factory() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        if (orders_.each) ++orders_.failAt;
        auto* word = new Word(orders_);
        word->AddRef();
        const HRESULT result = word->QueryInterface(id, object);
        word->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
    Orders orders_;
};

void CALLBACK EndUnused(HWND, UINT, UINT_PTR, DWORD) {
    ::PostQuitMessage(1);
}

int Serve(const Orders& orders) {
    ::CoInitialize(nullptr);
    Factory factory(orders);
    DWORD cookie = 0;
    ::CoRegisterClassObject(kClass, &factory, CLSCTX_LOCAL_SERVER,
                            orders.each ? REGCLS_MULTIPLEUSE : REGCLS_SINGLEUSE, &cookie);
    ::SetTimer(nullptr, 0, 60000, EndUnused);
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) ::DispatchMessageA(&message);
    ::CoRevokeClassObject(cookie);
    ::CoUninitialize();
    return 0;
}

void SetDefault(const std::string& key, const std::string& value) {
    ::RegSetValueA(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, value.c_str(), 0);
}

void Unregister() {
    const std::string cls = std::string("CLSID\\") + kClassText;
    for (const std::string& key :
         {cls + "\\LocalServer32", cls, std::string("Word.Basic\\CLSID"), std::string("Word.Basic")}) {
        ::RegDeleteKeyA(HKEY_CLASSES_ROOT, key.c_str());
    }
}

void Register(const std::string& log, const std::string& fail) {
    char exe[MAX_PATH];
    ::GetModuleFileNameA(nullptr, exe, sizeof exe);
    SetDefault("Word.Basic\\CLSID", kClassText);
    SetDefault(std::string("CLSID\\") + kClassText + "\\LocalServer32",
               "\"" + std::string(exe) + "\" \"" + log + "\" " + (fail.empty() ? "0" : fail));
}

}  // namespace

int main(int argc, char** argv) {
    const std::string first = argc > 1 ? argv[1] : "";
    if (first == "/register" && argc > 2) {
        Register(argv[2], argc > 3 ? argv[3] : "");
    } else if (first == "/unregister") {
        Unregister();
    } else if (argc > 2) {
        return Serve(
            {first, std::atoi(argv[2]), std::string(argv[2]) == "ask", std::string(argv[2]) == "each"});
    } else {
        return 1;
    }
    return 0;
}
