// What is dragged onto a window from other programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "win/windows.h"

namespace win {

using DroppedFiles = std::vector<std::string>;  // full paths

// A part of the object of its window. The thread must have called OleInitialize.
class DropTarget : public IDropTarget {
 public:
    DropTarget() = default;
    DropTarget(const DropTarget&) = delete;
    DropTarget& operator=(const DropTarget&) = delete;

    void attach(HWND window);
    void detach();  // before the window goes

    // The system lets go of the object in detach(), so nobody has to count.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override;
    HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override;
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override;

 protected:
    ~DropTarget() = default;

    // Whether a drop would be taken now.
    virtual bool isOpen() const = 0;
    // The files that were dropped; nothing when something else was. The program that they come from waits
    // until this returns.
    virtual void onDrop(const std::optional<DroppedFiles>& files) = 0;

 private:
    HWND window_ = nullptr;
};

}  // namespace win
