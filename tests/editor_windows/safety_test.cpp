// What makes programs safe that run with the rights of an administrator, and how they tell of what fails.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/editor_windows/running_editor.h"
#include "tests/store_windows/stand_ins.h"

namespace Testing {

using namespace VNT;

namespace {

namespace fs = std::filesystem;

fs::path GetProgramFolder() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return fs::path(self).parent_path();
}

// Libraries that nobody should load: one beside the programs, one in the folder that they are started from.
class Planted : public StandInTest {
protected:
    void SetUp() override {
        StandInTest::SetUp();
        if (IsSkipped()) return;
        fs::create_directories(here);
        for (const fs::path& file : {beside, here / L"vantelle_planted_here.dll"})
            fs::copy_file(GetProgramFolder() / L"nvapi64.dll", file, fs::copy_options::overwrite_existing);
        SetCurrentDirectoryW(here.c_str());
        InstallWmi("");
        Install(L"atiadlxx", L"atiadlxx", "load vantelle_planted.dll\nload vantelle_planted_here.dll\n");
    }
    void TearDown() override {
        SetCurrentDirectoryW(GetProgramFolder().c_str());
        fs::remove(beside);
        fs::remove_all(here);
        StandInTest::TearDown();
    }

    static int RunCommandLine() {
        STARTUPINFOW info{};
        info.cb = sizeof(info);
        PROCESS_INFORMATION process{};
        std::wstring command = L"\"" + (GetProgramFolder() / L"vantelle-cli.exe").wstring() + L"\" list";
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info, &process))
            return -1;
        WaitForSingleObject(process.hProcess, 60000);
        DWORD code = 0;
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
        return static_cast<int>(code);
    }

    const fs::path beside = GetProgramFolder() / L"vantelle_planted.dll";
    const fs::path here = GetProgramFolder() / L"started-here";
    const std::string neither = "loaded vantelle_planted.dll 0\nloaded vantelle_planted_here.dll 0\nstarted 0\n";
};

class Programs : public testing::TestWithParam<const wchar_t*> {};

}  // namespace

TEST_F(Planted, AreFoundByAProgramThatDoesNotConfineTheSearch) {
    for (const wchar_t* name : {L"vantelle_planted.dll", L"vantelle_planted_here.dll"}) {
        HMODULE library = LoadLibraryW(name);
        EXPECT_NE(library, nullptr);
        if (library) FreeLibrary(library);
    }
}

TEST_F(Planted, AreNotLoadedByTheCommandLine) {
    EXPECT_EQ(RunCommandLine(), 0);
    EXPECT_EQ(Report(L"atiadlxx"), neither);
}

TEST_F(Planted, AreNotLoadedByTheEditor) {
    RunningEditor editor;
    editor.AwaitWindow(L"MainWindow");
    editor.Press(VK_ESCAPE);
    EXPECT_EQ(editor.AwaitExit(), 0);
    EXPECT_EQ(Report(L"atiadlxx"), neither);
}

TEST_F(StandInTest, TheEditorTellsOfAFailingWmiSourceInABoxOfAnError) {
    RunningEditor editor;  // Wine has no such class
    HWND box = editor.AwaitWindow(L"#32770");
    EXPECT_EQ(RunningEditor::GetText(box), L"Error");
    editor.Find(box, L"Static", L"IWbemServices::GetObjectW(\"WmiMonitorDescriptorMethods\") failed.");
    // A plain box keeps the icon's place hidden.
    constexpr int iconId = 1088;
    HWND icon = GetDlgItem(box, iconId);
    EXPECT_TRUE(icon && IsWindowVisible(icon)) << "no icon";
    editor.Press(VK_RETURN);
    editor.AwaitWindow(L"MainWindow");
    editor.Press(VK_ESCAPE);
    EXPECT_EQ(editor.AwaitExit(), 0);
}

TEST_P(Programs, AreLoadedAnywhereAndRunNoData) {
    std::ifstream file(GetProgramFolder() / GetParam(), std::ios::binary);
    IMAGE_DOS_HEADER dos{};
    IMAGE_NT_HEADERS64 headers{};
    file.read(reinterpret_cast<char*>(&dos), sizeof(dos));
    file.seekg(dos.e_lfanew);
    file.read(reinterpret_cast<char*>(&headers), sizeof(headers));
    ASSERT_TRUE(file.good());
    constexpr int all = 0x20 + IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE + IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    EXPECT_EQ(headers.OptionalHeader.DllCharacteristics & all, all);
    EXPECT_EQ(headers.FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
}

TEST_P(Programs, TellTheirNameAndVersion) {
    HMODULE file = LoadLibraryExW((GetProgramFolder() / GetParam()).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(file, nullptr);
    HRSRC found = FindResourceW(file, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    ASSERT_NE(found, nullptr);
    const std::wstring_view told(static_cast<const wchar_t*>(LockResource(LoadResource(file, found))),
                                 SizeofResource(file, found) / sizeof(wchar_t));
    EXPECT_NE(told.find(GetParam()), told.npos);
    EXPECT_NE(told.find(L"ProductVersion"), told.npos);
    FreeLibrary(file);
}

INSTANTIATE_TEST_SUITE_P(Both, Programs, testing::Values(L"Vantelle.exe", L"vantelle-cli.exe"),
                         [](const auto& info) { return std::string(info.index == 0 ? "Editor" : "CommandLine"); });

}  // namespace Testing
