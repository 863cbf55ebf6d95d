// Dragging files out of this process with the mouse.
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <windows.h>

#include <shlobj.h>

#include "support/com_object.h"
#include "support/wide.h"
#include "support/windows_seen.h"

// The shell's own data object for files of one folder, as when they are dragged out of its windows.
inline IDataObject* ShellDataOf(const std::vector<std::string>& paths) {
    std::vector<ITEMIDLIST*> items;
    std::vector<const ITEMIDLIST*> names;
    for (const std::string& path : paths) {
        items.push_back(::ILCreateFromPathW(Wide(path).c_str()));
        names.push_back(::ILFindLastID(items.back()));
    }
    IShellFolder* folder = nullptr;
    EXPECT_HRESULT_SUCCEEDED(::SHBindToParent(items.at(0), IID_PPV_ARGS(&folder), nullptr));
    void* data = nullptr;
    EXPECT_HRESULT_SUCCEEDED(folder->GetUIObjectOf(nullptr, static_cast<UINT>(names.size()), names.data(),
                                                   IID_IDataObject, nullptr, &data));
    folder->Release();
    for (ITEMIDLIST* item : items) ::ILFree(item);
    return static_cast<IDataObject*>(data);
}

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

// Drags files from a window of its own to the middle of `target`, which may belong to any process, and drops
// them as soon as the target accepts them. Returns the effect that the target reports, or DROPEFFECT_NONE
// when it has not accepted them within ten seconds. The Source says that the button is down, so the real one
// is not used.
inline DWORD Drag(const std::vector<std::string>& paths, HWND target) {
    IDataObject* data = ShellDataOf(paths);
    const HWND owner = ::CreateWindowExA(WS_EX_TOPMOST, "STATIC", "Drag", WS_POPUP | WS_VISIBLE, 0, 0, 8, 8,
                                         nullptr, nullptr, nullptr, nullptr);
    std::atomic<bool> done = false;
    std::thread hand([&] {
        const RECT at = seen::PlaceOf(target);
        INPUT input{};
        input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
        input.mi.dy = ::MulDiv((at.top + at.bottom) / 2, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
        for (int step = 0; !done; ++step) {
            // Only the program in front gets mouse messages, and one that is just starting comes to the
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
    const HRESULT result =
        ::DoDragDrop(data, &source, DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK, &effect);
    data->Release();
    done = true;
    hand.join();
    ::DestroyWindow(owner);
    return result == DRAGDROP_S_DROP ? effect : static_cast<DWORD>(DROPEFFECT_NONE);
}
