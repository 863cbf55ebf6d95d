#include "win/drop_target.h"

#include <shellapi.h>

#include <utility>

#include "win/unicode.h"

namespace win {
namespace {

std::string DroppedPath(HDROP files, UINT index) {
    std::wstring path(::DragQueryFileW(files, index, nullptr, 0) + 1U, L'\0');
    path.resize(::DragQueryFileW(files, index, path.data(), static_cast<UINT>(path.size())));
    return ToUtf8(path);
}

std::vector<std::string> FilesOf(IDataObject& data) {
    FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    std::vector<std::string> paths;
    if (FAILED(data.GetData(&format, &medium))) return paths;
    const auto files = reinterpret_cast<HDROP>(medium.hGlobal);
    const UINT count = ::DragQueryFileW(files, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) paths.push_back(DroppedPath(files, i));
    ::ReleaseStgMedium(&medium);
    return paths;
}

// The paths of the drop that is being sent.
const std::vector<std::string>*& Current() {
    static const std::vector<std::string>* current = nullptr;
    return current;
}

// Owned by the system's references alone: the source program may still hold one when the window is destroyed.
class DropTarget : public IDropTarget {
 public:
    explicit DropTarget(HWND window) : window_(window) {}
    virtual ~DropTarget() = default;

    STDMETHOD(QueryInterface)(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDropTarget;
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
    STDMETHOD_(ULONG, Release)() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    STDMETHOD(DragEnter)(IDataObject*, DWORD, POINTL, DWORD* effect) override {
        *effect = allowed(*effect);
        return S_OK;
    }
    STDMETHOD(DragOver)(DWORD, POINTL, DWORD* effect) override {
        *effect = allowed(*effect);
        return S_OK;
    }
    STDMETHOD(DragLeave)() override { return S_OK; }

    STDMETHOD(Drop)(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        const DWORD taken = allowed(*effect);
        // Never a move: the source would delete its files.
        *effect = taken == DROPEFFECT_MOVE ? DROPEFFECT_NONE : taken;
        if (taken == DROPEFFECT_NONE || !data) return S_OK;
        try {
            const std::vector<std::string> paths = FilesOf(*data);
            if (paths.empty()) *effect = DROPEFFECT_NONE;
            SendDropped(window_, paths);
            return S_OK;
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

 private:
    // One of the effects that the source offers; none while the window is disabled by work or a dialog.
    DWORD allowed(DWORD offered) const {
        if (!::IsWindowEnabled(window_) || !::IsWindowEnabled(::GetAncestor(window_, GA_ROOT)))
            return DROPEFFECT_NONE;
        for (const DWORD effect : {DROPEFFECT_COPY, DROPEFFECT_LINK, DROPEFFECT_MOVE}) {
            if (offered & effect) return effect;
        }
        return DROPEFFECT_NONE;
    }

    HWND window_;
    ULONG references_ = 1;
};

}  // namespace

const std::vector<std::string>* DroppedFiles() {
    return Current();
}

void SendDropped(HWND window, const std::vector<std::string>& paths) {
    const auto* outer = std::exchange(Current(), &paths);
    ::SendMessageW(window, kDropped, 0, 0);
    Current() = outer;
}

void AcceptDrops(HWND window) {
    auto* target = new DropTarget(window);
    if (::RegisterDragDrop(window, target) == DRAGDROP_E_ALREADYREGISTERED) {
        ::RevokeDragDrop(window);
        ::RegisterDragDrop(window, target);
    }
    target->Release();
}

void RefuseDrops(HWND window) {
    ::RevokeDragDrop(window);
}

}  // namespace win
