// Dragging files out of this process with the mouse.
#pragma once

#include <atomic>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>

#include <shlobj.h>

#include "support/com_object.h"
#include "support/windows_seen.h"

// The CF_HDROP format: a DROPFILES and the paths, each with a NUL, and one NUL more.
inline std::string FileList(const std::vector<std::string>& paths) {
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

// Picks data up in a window of its own, moves the mouse to the middle of `target`, which may belong to any
// process, and lets go as soon as the target takes it. Gives the effect that the target reports; a cancelled
// drag (DROPEFFECT_NONE) when it has not taken it within ten seconds. Data and source live on the stack,
// which outlives every use of them. Whether the button is down is for the Source to say, which leaves the
// real one alone.
inline DWORD Drag(CLIPFORMAT format, const std::string& bytes, HWND target, DWORD offered) {
    Data data(format, bytes);
    const HWND owner = ::CreateWindowExA(WS_EX_TOPMOST, "STATIC", "Drag", WS_POPUP | WS_VISIBLE, 0, 0, 8, 8,
                                         nullptr, nullptr, nullptr, nullptr);
    std::atomic<bool> done = false;
    std::thread hand([&] {
        const RECT at = seen::PlaceOf(target);
        INPUT input{};
        input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
        input.mi.dy = ::MulDiv((at.top + at.bottom) / 2, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
        for (int step = 0; !done; ++step) {
            // Only the program in front is told of the mouse, and one that is just starting comes to the
            // front.
            if (::GetForegroundWindow() != owner) ::SetForegroundWindow(owner);
            input.mi.dx =
                ::MulDiv((at.left + at.right) / 2 + step % 2, 65536, ::GetSystemMetrics(SM_CXSCREEN)) + 1;
            ::SendInput(1, &input, sizeof input);
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
