// What the program carries, and what it leaves behind.
#include "ui/win32/resource.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "tests/ui/conformance/adapter.h"
#include "ui/win32/platform.h"

namespace Conformance {

using namespace UI;

namespace {

std::string_view GetResource(int id, const wchar_t* kind) {
    HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), kind);
    if (!found) return {};
    const auto* bytes = static_cast<const char*>(LockResource(LoadResource(nullptr, found)));
    return {bytes, SizeofResource(nullptr, found)};
}

// Handles of one kind, made until the system has no more, then `left` given back.
class FullTable {
public:
    FullTable(std::function<void*()> make, std::function<void(void*)> destroy, std::size_t left)
        : make(std::move(make)), destroy(std::move(destroy)) {
        Fill();
        EXPECT_GT(handles.size(), 1000 + left);
        for (; left > 0; --left) DestroyLast();
    }
    FullTable(const FullTable&) = delete;
    FullTable& operator=(const FullTable&) = delete;
    ~FullTable() {
        while (!handles.empty()) DestroyLast();
    }

    // How many the system has left now.
    std::size_t CountLeft() {
        const std::size_t before = handles.size();
        Fill();
        const std::size_t count = handles.size() - before;
        while (handles.size() > before) DestroyLast();
        return count;
    }

private:
    void Fill() {
        while (void* handle = make()) handles.push_back(handle);
    }
    void DestroyLast() {
        destroy(handles.back());
        handles.pop_back();
    }

    std::function<void*()> make;
    std::function<void(void*)> destroy;
    std::vector<void*> handles;
};

// The greatest of many new handles of the kernel. Its table gives the lowest that is free, so whatever stays behind
// pushes the next ones up.
std::uintptr_t ProbeKernelHandles() {
    std::vector<HANDLE> handles(500);
    for (HANDLE& handle : handles) handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const auto greatest = reinterpret_cast<std::uintptr_t>(*std::max_element(handles.begin(), handles.end()));
    for (HANDLE handle : handles) CloseHandle(handle);
    return greatest;
}

void OpenAndClose() {
    TestWindow window;
    AllControls all(window);
    all.Ok.AddNotificationHandler(Controls::Button::Clicked, [] { EndRun(IdOk); });
    const int result = RunWith(window, {[&] {
                                   all.Box.SetFocus();
                                   Type(L"7");
                                   all.Box.SetValidStyle(false);
                                   all.Group.SetValidStyle(false);
                                   all.Combo.SetDroppedDown(true);
                                   all.Combo.SetDroppedDown(false);
                                   all.Lines.SetEnabled(false);
                                   Click(all.Ok);
                               }});
    ASSERT_EQ(result, IdOk);
}

}  // namespace

TEST(Resources, TellTheSystemWhatTheProgramNeeds) {
    const std::string_view manifest = GetResource(1, RT_MANIFEST);
    for (const char* wanted :
         {"level=\"highestAvailable\"", ">PerMonitorV2<", ">true</dpiAware>", "Microsoft.Windows.Common-Controls",
          "version=\"6.0.0.0\"", "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {
        EXPECT_NE(manifest.find(wanted), std::string_view::npos) << wanted;
    }
}

TEST(Resources, HaveAnIconOfManySizes) {
    // The directory: a header whose third word counts the pictures, then fourteen bytes each, the width first.
    const std::string_view icon = GetResource(VANTELLE_ICON, RT_GROUP_ICON);
    ASSERT_GE(icon.size(), 6u);
    std::vector<int> widths;
    for (std::size_t at = 6; at + 14 <= icon.size(); at += 14) widths.push_back(static_cast<unsigned char>(icon[at]));
    EXPECT_EQ(widths, (std::vector<int>{16, 20, 24, 32, 40, 48, 64, 96, 128, 0})) << "0 stands for 256";
}

// The system's own counts of handles answer 0 under Wine. A full table tells as much: what the windows left behind is
// missing from the handles that were left.
TEST(Resources, AreAllReleasedByEachWindowWithHardlyAHandleLeft) {
    constexpr std::size_t left = 150;
    constexpr std::size_t windows = 12;
    OpenAndClose();  // what the process makes once
    const int live = CountLive();
    FullTable drawing([]() -> void* { return CreateSolidBrush(RGB(1, 2, 3)); },
                      [](void* handle) { DeleteObject(handle); }, left);
    FullTable user([]() -> void* { return CreateMenu(); },
                   [](void* handle) { DestroyMenu(static_cast<HMENU>(handle)); }, left);
    const std::uintptr_t kernel = ProbeKernelHandles();
    for (std::size_t i = 0; i < windows && !HasFatalFailure(); ++i) OpenAndClose();
    constexpr std::uintptr_t step = 4;  // from one handle of the kernel to the next
    EXPECT_LT(ProbeKernelHandles(), kernel + windows * step);
    EXPECT_EQ(CountLive(), live);
    EXPECT_GT(drawing.CountLeft(), left - windows);
    EXPECT_GT(user.CountLeft(), left - windows);
}

}  // namespace Conformance
