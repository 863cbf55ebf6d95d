#include "win/drop_target.h"

#include <exception>

namespace win {
namespace {

DroppedFiles Paths(HDROP drop) {
    DroppedFiles files(::DragQueryFileA(drop, 0xFFFFFFFF, nullptr, 0));
    for (UINT i = 0; i < files.size(); ++i) {
        const UINT length = ::DragQueryFileA(drop, i, nullptr, 0);
        files[i].resize(length + 1);
        files[i].resize(::DragQueryFileA(drop, i, files[i].data(), length + 1));
    }
    return files;
}

std::optional<DroppedFiles> Files(IDataObject* data) {
    FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    if (FAILED(data->GetData(&format, &medium))) return std::nullopt;
    DroppedFiles files = Paths(static_cast<HDROP>(medium.hGlobal));
    ::ReleaseStgMedium(&medium);
    return files;
}

}  // namespace

void DropTarget::attach(HWND window) {
    // Some controls come with a target of their own.
    if (::RegisterDragDrop(window, this) == DRAGDROP_E_ALREADYREGISTERED) {
        ::RevokeDragDrop(window);
        ::RegisterDragDrop(window, this);
    }
    window_ = window;
}

void DropTarget::detach() {
    if (window_) ::RevokeDragDrop(window_);
    window_ = nullptr;
}

HRESULT DropTarget::QueryInterface(REFIID id, void** object) {
    const bool known = id == IID_IUnknown || id == IID_IDropTarget;
    *object = known ? static_cast<IDropTarget*>(this) : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT DropTarget::DragEnter(IDataObject*, DWORD keys, POINTL at, DWORD* effect) {
    return DragOver(keys, at, effect);
}

HRESULT DropTarget::DragOver(DWORD, POINTL, DWORD* effect) {
    *effect &= isOpen() ? DROPEFFECT_COPY : DROPEFFECT_NONE;
    return S_OK;
}

HRESULT DropTarget::Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) {
    DragOver(keys, at, effect);
    if (*effect == DROPEFFECT_NONE) return S_OK;
    try {
        onDrop(Files(data));
        return S_OK;
    } catch (const std::exception&) {
        *effect = DROPEFFECT_NONE;
        return E_FAIL;
    }
}

}  // namespace win
