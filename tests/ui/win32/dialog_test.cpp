// The system's dialogs, with a user who answers them.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "ui/dialogs.h"
#include "ui/resources.h"
#include "ui/win32/platform.h"

namespace UI {

namespace {

// Looks for a dialog of this thread again and again, and does `answer` to the first that opens.
class Answer {
public:
    explicit Answer(std::function<bool(HWND)> answer) {
        current = std::move(answer);
        timer = SetTimer(nullptr, 0, 50, Look);
    }
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;
    ~Answer() {
        KillTimer(nullptr, timer);
        EXPECT_FALSE(current) << "no dialog opened";
        current = nullptr;
    }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), Try, 0); }

    static BOOL CALLBACK Try(HWND window, LPARAM) {
        wchar_t name[16] = {};
        GetClassNameW(window, name, static_cast<int>(std::size(name)));
        if (!current || !IsWindowVisible(window) || std::wstring(name) != L"#32770") return TRUE;
        if (current(window)) current = nullptr;
        return FALSE;
    }

    static inline std::function<bool(HWND)> current;
    UINT_PTR timer;
};

std::wstring GetTextOf(HWND window) { return Native::GetText(Win32::ToHandle(window)); }

const FileDialog Import{L"Import", L"Import", L"bin", {{L"BIN/DAT Files", L"*.bin;*.dat"}, {L"TXT Files", L"*.txt"}}};

// Looks through a dialog for the first window inside it that `isWanted`.
struct Search {
    std::function<bool(HWND, const std::wstring& className)> IsWanted;
    HWND Found = nullptr;

    static BOOL CALLBACK Try(HWND window, LPARAM data) {
        auto& search = *reinterpret_cast<Search*>(data);
        wchar_t name[32] = {};
        GetClassNameW(window, name, static_cast<int>(std::size(name)));
        if (search.IsWanted(window, name)) search.Found = window;
        return search.Found == nullptr;
    }
};

HWND FindInside(HWND dialog, std::function<bool(HWND, const std::wstring& className)> isWanted) {
    Search search{std::move(isWanted)};
    EnumChildWindows(dialog, Search::Try, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

// Types a path, takes the type with that index counted from 0, and presses the OK button.
bool Choose(HWND dialog, const std::filesystem::path& path, int type) {
    HWND edit = FindInside(dialog, [](HWND, const std::wstring& name) { return name == L"Edit"; });
    HWND types = FindInside(dialog, [](HWND window, const std::wstring& name) {
        return name == L"ComboBox" && SendMessageW(window, CB_GETCOUNT, 0, 0) == std::ssize(Import.Types);
    });
    if (!edit || !types) return false;
    SendMessageW(types, CB_SETCURSEL, static_cast<WPARAM>(type), 0);
    SendMessageW(GetParent(types), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(types), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(types));
    SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    return true;
}

}  // namespace

TEST(Dialogs, AMessageShowsItsTextUntilItIsClosed) {
    std::wstring caption;
    std::wstring text;
    const Answer answer([&](HWND dialog) {
        caption = GetTextOf(dialog);
        text = GetTextOf(GetDlgItem(dialog, 0xFFFF));
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        return true;
    });
    ShowMessage(nullptr, L"Failed to import file.", L"Error", MessageKind::Error);
    EXPECT_EQ(caption, L"Error");
    EXPECT_EQ(text, L"Failed to import file.");
}

TEST(Dialogs, ACancelledFileDialogGivesNothingAndLeavesNothing) {
    const int live = CountLive();
    std::wstring title;
    std::wstring ok;
    const auto cancel = [&](HWND dialog) {
        title = GetTextOf(dialog);
        ok = GetTextOf(GetDlgItem(dialog, IDOK));
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return true;
    };
    {
        const Answer answer(cancel);
        EXPECT_EQ(ChooseFileToOpen(nullptr, Import), std::nullopt);
    }
    EXPECT_EQ(title, L"Import");
    EXPECT_EQ(ok, L"Import");
    {
        FileDialog save = Import;
        save.Title = save.OkLabel = L"Export";
        const Answer answer(cancel);
        EXPECT_EQ(ChooseFileToSave(nullptr, save), std::nullopt);
    }
    EXPECT_EQ(title, L"Export");
    EXPECT_EQ(CountLive(), live);
}

TEST(Dialogs, AChosenFileComesWithItsTypeCountedFromOne) {
    const int live = CountLive();
    const auto folder = std::filesystem::temp_directory_path();
    const auto path = folder / L"vantelle-dialog-test.bin";
    std::ofstream(path) << "EDID";
    {
        const Answer answer([&](HWND dialog) { return Choose(dialog, path, 0); });
        EXPECT_EQ(ChooseFileToOpen(nullptr, Import), (ChosenFile{path, 1}));
    }
    std::filesystem::remove(path);
    {
        const auto text = folder / L"vantelle-dialog-test.txt";
        const Answer answer([&](HWND dialog) { return Choose(dialog, text, 1); });
        EXPECT_EQ(ChooseFileToSave(nullptr, Import), (ChosenFile{text, 2}));
    }
    {
        // Without an extension it gets that of the type.
        const Answer answer([&](HWND dialog) { return Choose(dialog, folder / L"vantelle-dialog-test", 0); });
        EXPECT_EQ(ChooseFileToSave(nullptr, Import), (ChosenFile{path, 1}));
    }
    EXPECT_EQ(CountLive(), live);
}

}  // namespace UI
