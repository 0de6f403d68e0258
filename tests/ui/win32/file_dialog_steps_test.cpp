// The steps of the dialogs that ask for a file, over a stand-in that fails any of them.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ui/win32/file_dialogs.h"

namespace UI {

namespace {

using namespace Win32;

using Log = std::vector<std::wstring>;

// What the stand-ins were asked, and the call that they fail.
struct Script {
    Log Calls;
    std::wstring Failing;

    HRESULT Note(const std::wstring& call, const std::wstring& argument = {}) {
        Calls.push_back(argument.empty() ? call : call + L" " + argument);
        return call == Failing ? E_FAIL : S_OK;
    }
};

class Item : public IShellItem {
public:
    explicit Item(Script& script) : script(script) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override {
        script.Note(L"release the item");
        return 0;
    }
    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem*, SICHINTF, int*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, wchar_t** name) override {
        EXPECT_EQ(form, SIGDN_FILESYSPATH);
        const HRESULT result = script.Note(L"GetDisplayName");
        if (FAILED(result)) return result;
        const std::wstring path = L"C:\\a.bin";
        const std::size_t size = (path.size() + 1) * sizeof(wchar_t);
        *name = static_cast<wchar_t*>(CoTaskMemAlloc(size));
        path.copy(*name, path.size());
        (*name)[path.size()] = 0;
        return result;
    }

private:
    Script& script;
};

// Has the calls of the system's dialogs that are used.
class StandIn {
public:
    explicit StandIn(Script& script) : script(script), item(script) {}

    void Release() { script.Note(L"release the dialog"); }
    HRESULT SetTitle(const wchar_t* title) { return script.Note(L"SetTitle", title); }
    HRESULT SetOkButtonLabel(const wchar_t* label) { return script.Note(L"SetOkButtonLabel", label); }
    HRESULT SetDefaultExtension(const wchar_t* extension) { return script.Note(L"SetDefaultExtension", extension); }
    HRESULT SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) {
        std::wstring all;
        for (UINT i = 0; i < count; ++i) all += std::wstring(types[i].pszName) + L"=" + types[i].pszSpec + L"|";
        return script.Note(L"SetFileTypes", all);
    }
    HRESULT Show(HWND owner) {
        EXPECT_EQ(owner, nullptr);
        return script.Note(L"Show");
    }
    HRESULT GetResult(IShellItem** result) {
        const HRESULT answer = script.Note(L"GetResult");
        if (SUCCEEDED(answer)) *result = &item;
        return answer;
    }
    HRESULT GetFileTypeIndex(UINT* index) {
        *index = 3;
        return script.Note(L"GetFileTypeIndex");
    }

private:
    Script& script;
    Item item;
};

const FileDialog Import{L"Import", L"Bring in", L"bin", {{L"BIN", L"*.bin"}, {L"All", L"*.*"}}};

// Runs a dialog that fails at `failing`; what is thrown, or the path and the type that it gives.
std::wstring Ask(Script& script, const Failures& failures) {
    StandIn dialog(script);
    const auto create = [&](StandIn** created) {
        const HRESULT result = script.Note(L"create");
        if (SUCCEEDED(result)) *created = &dialog;
        return result;
    };
    try {
        const auto file = ChooseFile<StandIn>(create, nullptr, Import, failures);
        return file ? file->Path.wstring() + L" " + std::to_wstring(file->TypeIndex) : L"nothing";
    } catch (const wchar_t* text) {
        return text;
    }
}

const Log Steps{L"create",
                L"SetTitle Import",
                L"SetOkButtonLabel Bring in",
                L"SetDefaultExtension bin",
                L"SetFileTypes BIN=*.bin|All=*.*|",
                L"Show",
                L"GetResult",
                L"GetDisplayName",
                L"GetFileTypeIndex"};

std::wstring GetName(const std::wstring& step) { return step.substr(0, step.find(L' ')); }

// Each step fails in turn: its text is thrown, no later one is made, and what was opened is released.
void FailEachStep(const Failures& failures, const std::wstring& dialog, std::size_t count) {
    const int live = CountLive();
    for (std::size_t i = 0; i < count; ++i) {
        const std::wstring name = GetName(Steps[i]);
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        Script script{{}, name};
        const std::wstring result = Ask(script, failures);
        if (name == L"create") {
            EXPECT_EQ(result, L"CoCreateInstance failed.");
        } else if (name == L"Show") {
            EXPECT_EQ(result, L"nothing") << "cancelled";
        } else if (name == L"GetDisplayName") {
            EXPECT_EQ(result, L"IShellItem::GetDisplayName failed.");
        } else {
            EXPECT_EQ(result, dialog + L"::" + name + L" failed.");
        }
        Log expected(Steps.begin(), Steps.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        if (i > 6) expected.push_back(L"release the item");
        if (i > 0) expected.push_back(L"release the dialog");
        EXPECT_EQ(script.Calls, expected);
        EXPECT_EQ(CountLive(), live);
    }
}

}  // namespace

TEST(FileDialogSteps, OfTheOneThatOpensEndWithThePath) {
    FailEachStep(OpenFailures, L"IFileOpenDialog", 8);
    Script script;
    EXPECT_EQ(Ask(script, OpenFailures), L"C:\\a.bin 1");
    Log expected(Steps.begin(), Steps.end() - 1);
    expected.insert(expected.end(), {L"release the item", L"release the dialog"});
    EXPECT_EQ(script.Calls, expected);
}

TEST(FileDialogSteps, OfTheOneThatSavesEndWithTheType) {
    FailEachStep(SaveFailures, L"IFileSaveDialog", 9);
    Script script;
    EXPECT_EQ(Ask(script, SaveFailures), L"C:\\a.bin 3");
}

TEST(FileDialogSteps, BeginWithTheObjectLibraryAndEndWithItsRelease) {
    // A thread of another kind can't have it.
    ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    Script script;
    EXPECT_EQ(Ask(script, OpenFailures), L"CoInitializeEx failed.");
    EXPECT_EQ(script.Calls, Log());
    CoUninitialize();
    EXPECT_EQ(Ask(script, OpenFailures), L"C:\\a.bin 1");
    // S_OK and not S_FALSE: no use of it is left.
    EXPECT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
    CoUninitialize();
}

}  // namespace UI
