// COM objects for stand-ins.
#pragma once

#include <functional>
#include <utility>

#include <windows.h>

#include <ole2.h>

// Has one interface, counts its references and deletes itself with the last one.
template <typename Interface>
class ComObject : public Interface {
 public:
    virtual ~ComObject() = default;
    STDMETHOD(QueryInterface)(REFIID id, void** object) override {
        *object = id == IID_IUnknown || id == __uuidof(Interface) ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
    STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
    STDMETHOD_(ULONG, Release)() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

 private:
    ULONG references_ = 1;
};

// Registers a class for its own life, for this process or as a local server (CLSCTX_...). `create` makes the
// objects.
class ClassServer : public ComObject<IClassFactory> {
 public:
    ClassServer(const CLSID& cls, DWORD context, std::function<IUnknown*()> create)
        : create_(std::move(create)) {
        ::CoRegisterClassObject(cls, this, context, REGCLS_MULTIPLEUSE, &cookie_);
    }
    ~ClassServer() override { ::CoRevokeClassObject(cookie_); }
    STDMETHOD(CreateInstance)(IUnknown*, REFIID id, void** object) override {
        IUnknown* made = create_();
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    }
    STDMETHOD(LockServer)(BOOL) override { return S_OK; }

 private:
    std::function<IUnknown*()> create_;
    DWORD cookie_ = 0;
};
