// What a screen reader learns of a window: through the system's library, as those do.
#pragma once

#include <windows.h>

#include <oleacc.h>
#include <oleauto.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace Testing {

struct Reading {
    std::wstring Name;
    long Role = 0;
    long State = 0;
    std::wstring Value;
    std::wstring Description;

    bool Is(long state) const { return State / state % 2 == 1; }
};

class ScreenReader {
public:
    ScreenReader() : library(LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) throw std::runtime_error("CoInitializeEx");
        fromWindow = reinterpret_cast<FromWindow>(
            reinterpret_cast<void (*)()>(GetProcAddress(library, "AccessibleObjectFromWindow")));
        if (!fromWindow) throw std::runtime_error("AccessibleObjectFromWindow");
    }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader() {
        CoUninitialize();
        FreeLibrary(library);
    }

    // What the window says of itself.
    class Object {
    public:
        explicit Object(IAccessible* accessible) : accessible(accessible) {}
        Object(const Object&) = delete;
        Object& operator=(const Object&) = delete;
        ~Object() { accessible->Release(); }
        IAccessible* operator->() const { return accessible; }

        // Of a row of a list, from 1 on, or of all.
        Reading Read(long child = CHILDID_SELF) const {
            Reading reading;
            reading.Name = Ask(&IAccessible::get_accName, child);
            reading.Value = Ask(&IAccessible::get_accValue, child);
            reading.Description = Ask(&IAccessible::get_accDescription, child);
            reading.Role = Count(&IAccessible::get_accRole, child);
            reading.State = Count(&IAccessible::get_accState, child);
            return reading;
        }
        std::wstring Ask(HRESULT (IAccessible::*get)(VARIANT, BSTR*), long child = CHILDID_SELF) const {
            BSTR text = nullptr;
            if (FAILED((accessible->*get)(Number(child), &text)) || !text) return {};
            const std::wstring copy(text, SysStringLen(text));
            SysFreeString(text);
            return copy;
        }
        long Count(HRESULT (IAccessible::*get)(VARIANT, VARIANT*), long child = CHILDID_SELF) const {
            VARIANT value;
            VariantInit(&value);
            return SUCCEEDED((accessible->*get)(Number(child), &value)) && value.vt == VT_I4 ? value.lVal : -1;
        }
        static VARIANT Number(long number) {
            VARIANT value;
            VariantInit(&value);
            value.vt = VT_I4;
            value.lVal = number;
            return value;
        }

    private:
        IAccessible* accessible;
    };

    Object Open(HWND window) const {
        void* found = nullptr;
        const HRESULT result = fromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &found);
        if (FAILED(result)) throw std::runtime_error("No accessible object: " + std::to_string(result));
        return Object(static_cast<IAccessible*>(found));
    }
    Reading Read(HWND window) const { return Open(window).Read(); }

private:
    using FromWindow = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    HMODULE library;
    FromWindow fromWindow;
};

}  // namespace Testing
