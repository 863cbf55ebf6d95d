// A COM object of one interface, for stand-ins.
#pragma once

#include <windows.h>

#include <ole2.h>

// Counts its references and goes with the last one.
template <typename Interface>
class ComObject : public Interface {
 public:
    virtual ~ComObject() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = id == IID_IUnknown || id == __uuidof(Interface) ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

 private:
    ULONG references_ = 1;
};

// Makes objects of one kind, each as `create` gives it.
template <typename Create>
class ComFactory : public ComObject<IClassFactory> {
 public:
    explicit ComFactory(Create create) : create_(create) {}
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        auto* made = create_();
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
    Create create_;
};
