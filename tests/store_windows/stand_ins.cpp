#include "tests/store_windows/stand_ins.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace VNT {

namespace {

constexpr wchar_t LocatorKey[] = L"Software\\Classes\\CLSID\\{4590F811-1D3A-11D0-891F-00AA004B2E24}\\InprocServer32";

std::wstring SystemFile(const std::wstring& name) {
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetSystemDirectoryW(folder.data(), MAX_PATH));
    return folder + L"\\" + name;
}

std::wstring ProgramFile(const std::wstring& name) {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    return program.substr(0, program.rfind(L'\\') + 1) + name;
}

std::string ReadText(const std::wstring& path) {
    std::ostringstream text;
    text << std::ifstream(std::filesystem::path(path)).rdbuf();
    return text.str();
}

// Moves what the prefix may have of the files that the tests put there out of their way, or back.
void KeepAside(const std::wstring& from, const std::wstring& to) {
    for (const wchar_t* name : {L"atiadlxx", L"atiadlxy", L"nvapi", L"nvapi64", L"vantelle_wmi"}) {
        for (const wchar_t* ending : {L".dll", L".txt"}) {
            const std::wstring file = SystemFile(name) + ending;
            MoveFileExW((file + from).c_str(), (file + to).c_str(), MOVEFILE_REPLACE_EXISTING);
        }
    }
}

}  // namespace

void StandInTest::SetUp() {
    PrefixTest::SetUp();
    if (IsSkipped()) return;
    KeepAside(L"", L".kept");
    std::wstring path(MAX_PATH, L'\0');
    DWORD size = MAX_PATH * sizeof(wchar_t);
    if (RegGetValueW(HKEY_LOCAL_MACHINE, LocatorKey, nullptr, RRF_RT_REG_SZ, nullptr, path.data(), &size) == 0) {
        locator_ = path.c_str();
    }
}

void StandInTest::TearDown() {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
    KeepAside(L".kept", L"");
    if (!locator_.empty()) SetLocator(locator_);
    PrefixTest::TearDown();
}

void StandInTest::SetLocator(const std::wstring& path) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, LocatorKey, nullptr, REG_SZ, path.c_str(),
                              static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))),
              0);
}

void StandInTest::Install(const std::wstring& standIn, const std::wstring& name, const std::string& text) {
    for (const wchar_t* ending : {L".dll", L".txt", L".report"}) files_.push_back(SystemFile(name + ending));
    DeleteFileW(SystemFile(name + L".report").c_str());
    std::ofstream(std::filesystem::path(SystemFile(name + L".txt"))) << text;
    ASSERT_TRUE(CopyFileW(ProgramFile(standIn + L".dll").c_str(), SystemFile(name + L".dll").c_str(), FALSE));
}

void StandInTest::InstallWmi(const std::string& text) {
    Install(L"vantelle_wmi", L"vantelle_wmi", text);
    SetLocator(SystemFile(L"vantelle_wmi.dll"));
}

void StandInTest::UnregisterWmi() { SetLocator(SystemFile(L"no_such_library.dll")); }

std::string StandInTest::Report(const std::wstring& name) { return ReadText(SystemFile(name + L".report")); }

}  // namespace VNT
