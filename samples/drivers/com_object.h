#pragma once

#include <windows.h>

#include <objbase.h>

#include "samples/drivers/driving.h"

namespace StandIn {

Driving& Wmi();

// A COM object of one interface, counted while it is alive.
template <class Interface, const IID& iid>
class ComObject : public Interface {
public:
    ComObject() { Wmi().Count("objects", 1); }
    virtual ~ComObject() { Wmi().Count("objects", -1); }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID wanted, void** out) override {
        *out = nullptr;
        if (!IsEqualIID(wanted, IID_IUnknown) && !IsEqualIID(wanted, iid)) return E_NOINTERFACE;
        *out = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --count_;
        if (left == 0) delete this;
        return left;
    }

private:
    ULONG count_ = 1;
};

}  // namespace StandIn
