#include "store/windows/system_library.h"

#include <windows.h>

namespace VNT {

namespace {

class SystemLibrary : public DriverLibrary {
public:
    explicit SystemLibrary(HMODULE library) : library_(library) {}
    ~SystemLibrary() override { FreeLibrary(library_); }
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    Procedure Find(const char* name) const override {
        return reinterpret_cast<Procedure>(GetProcAddress(library_, name));
    }

private:
    HMODULE library_;
};

}  // namespace

std::unique_ptr<DriverLibrary> LoadSystemLibrary(const wchar_t* name) {
    const HMODULE library = LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library == nullptr) return nullptr;
    return std::make_unique<SystemLibrary>(library);
}

void ConfineLibrarySearch() {
    // Windows 7 has it only with an update.
    const auto confine = reinterpret_cast<BOOL(WINAPI*)(DWORD)>(
        reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
    if (confine == nullptr || !confine(LOAD_LIBRARY_SEARCH_SYSTEM32)) SetDllDirectoryW(L"");
}

}  // namespace VNT
