#include "e2e/drag_source.h"

#include <atomic>
#include <cstring>
#include <thread>

#include <shlobj.h>

#include "support/com_object.h"
#include "support/windows_seen.h"

namespace {

// The CF_HDROP format: a DROPFILES and the paths, each with a NUL, and one NUL more.
std::string FileList(const std::vector<std::string>& paths) {
    DROPFILES head{};
    head.pFiles = sizeof head;
    std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
    for (const std::string& path : paths) bytes.append(path).append(1, '\0');
    return bytes.append(1, '\0');
}

class Data : public ComObject<IDataObject> {
 public:
    Data(CLIPFORMAT format, std::string bytes) : format_(format), bytes_(std::move(bytes)) {}

    STDMETHOD(GetData)(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = ::GlobalAlloc(GMEM_FIXED, bytes_.size());
        std::memcpy(medium->hGlobal, bytes_.data(), bytes_.size());
        return S_OK;
    }
    STDMETHOD(QueryGetData)(FORMATETC* format) override {
        return format->cfFormat == format_ && (format->tymed & TYMED_HGLOBAL) ? S_OK : DV_E_FORMATETC;
    }
    STDMETHOD(EnumFormatEtc)(DWORD direction, IEnumFORMATETC** formats) override {
        FORMATETC only{format_, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        return direction == DATADIR_GET ? ::SHCreateStdEnumFmtEtc(1, &only, formats) : E_NOTIMPL;
    }
    STDMETHOD(GetDataHere)(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    STDMETHOD(GetCanonicalFormatEtc)(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    STDMETHOD(SetData)(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHOD(DAdvise)(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHOD(DUnadvise)(DWORD) override { return E_NOTIMPL; }
    STDMETHOD(EnumDAdvise)(IEnumSTATDATA**) override { return E_NOTIMPL; }

 private:
    CLIPFORMAT format_;
    std::string bytes_;
};

class Source : public ComObject<IDropSource> {
 public:
    STDMETHOD(QueryContinueDrag)(BOOL, DWORD) override {
        if (taken_) return DRAGDROP_S_DROP;
        return ::GetTickCount() - start_ > 10000 ? DRAGDROP_S_CANCEL : S_OK;
    }
    STDMETHOD(GiveFeedback)(DWORD effect) override {
        taken_ = effect != DROPEFFECT_NONE;
        return DRAGDROP_S_USEDEFAULTCURSORS;
    }

 private:
    DWORD start_ = ::GetTickCount();
    bool taken_ = false;
};

void MoveMouse(POINT to) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = ::MulDiv(to.x, 65536, ::GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = ::MulDiv(to.y, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    ::SendInput(1, &input, sizeof input);
}

// Data and source live on the stack, which outlives every use of them. Whether the button is down is for the
// Source to say, which leaves the real one alone.
DWORD Drag(IDataObject& data, HWND target, DWORD offered) {
    const HWND owner = ::CreateWindowExA(WS_EX_TOPMOST, "STATIC", "Drag", WS_POPUP | WS_VISIBLE, 0, 0, 8, 8,
                                         nullptr, nullptr, nullptr, nullptr);
    std::atomic<bool> done = false;
    std::thread hand([&] {
        const RECT at = seen::PlaceOf(target);
        for (int step = 0; !done; ++step) {
            // Only the program in front is told of the mouse, and one that is just starting comes to the
            // front.
            if (::GetForegroundWindow() != owner) ::SetForegroundWindow(owner);
            MoveMouse({(at.left + at.right) / 2 + step % 2, (at.top + at.bottom) / 2});
            ::Sleep(20);
        }
    });
    Source source;
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT result = ::DoDragDrop(&data, &source, offered, &effect);
    done = true;
    hand.join();
    ::DestroyWindow(owner);
    return result == DRAGDROP_S_DROP ? effect : static_cast<DWORD>(DROPEFFECT_NONE);
}

}  // namespace

DWORD DragFiles(const std::vector<std::string>& paths, HWND target, DWORD offered) {
    Data data(CF_HDROP, FileList(paths));
    return Drag(data, target, offered);
}

DWORD DragText(const std::string& text, HWND target, DWORD offered) {
    Data data(CF_TEXT, text + '\0');
    return Drag(data, target, offered);
}
