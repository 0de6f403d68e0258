#include "samples/drivers/dll_main.h"

#include <windows.h>

#include <cstdio>

namespace {

// The file beside the DLL, with another ending.
std::wstring Beside(HINSTANCE dll, const wchar_t* ending) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(dll, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'.')) + ending;
}

std::string ReadText(const std::wstring& path) {
    std::string text;
    if (FILE* file = _wfopen(path.c_str(), L"rb")) {
        char buffer[4096];
        for (std::size_t size; (size = std::fread(buffer, 1, sizeof(buffer), file)) > 0;) text.append(buffer, size);
        std::fclose(file);
    }
    return text;
}

void WriteText(const std::wstring& path, const std::string& text) {
    if (FILE* file = _wfopen(path.c_str(), L"wb")) {
        std::fwrite(text.data(), 1, text.size(), file);
        std::fclose(file);
    }
}

void LoadOthers(StandIn::Driving& driving) {
    for (const int line : driving.Below(-1, "load")) {
        const std::string name = driving.At(line).Text(0);
        driving.Count("loaded " + name, LoadLibraryA(name.c_str()) != nullptr ? 1 : 0);
    }
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE dll, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        StandIn::DllDriving().Start(ReadText(Beside(dll, L".txt")));
        LoadOthers(StandIn::DllDriving());
    }
    if (reason == DLL_PROCESS_DETACH) WriteText(Beside(dll, L".report"), StandIn::DllDriving().Report());
    return TRUE;
}
