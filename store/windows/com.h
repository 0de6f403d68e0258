#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

namespace VNT {

// COM for the life of the object, if it could be had.
class ComLibrary {
public:
    ComLibrary() = default;
    ~ComLibrary() {
        if (initialized_) CoUninitialize();
    }
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;

    bool Initialize() { return initialized_ = SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)); }

private:
    bool initialized_ = false;
};

// Owns a reference to an object, or none.
template <class Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer() { Reset(); }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    Interface* Get() const { return pointer_; }
    Interface* operator->() const { return pointer_; }
    // The place for a new reference; what was held is released.
    Interface** Out() {
        Reset();
        return &pointer_;
    }
    // What a call says that fills the place: it may succeed and give nothing.
    bool Took(HRESULT result) const { return SUCCEEDED(result) && pointer_ != nullptr; }

private:
    void Reset() {
        if (pointer_ != nullptr) pointer_->Release();
        pointer_ = nullptr;
    }

    Interface* pointer_ = nullptr;
};

// Owns a text of COM.
class ComText {
public:
    explicit ComText(const wchar_t* text) : text_(SysAllocString(text)) {}
    ~ComText() { SysFreeString(text_); }
    ComText(const ComText&) = delete;
    ComText& operator=(const ComText&) = delete;
    operator BSTR() const { return text_; }

private:
    BSTR text_;
};

// Owns what a variant holds.
class ComVariant {
public:
    ComVariant() { VariantInit(&value_); }
    ~ComVariant() { VariantClear(&value_); }
    ComVariant(const ComVariant&) = delete;
    ComVariant& operator=(const ComVariant&) = delete;

    VARIANT* operator&() { return &value_; }
    const VARIANT& Get() const { return value_; }

private:
    VARIANT value_;
};

}  // namespace VNT
