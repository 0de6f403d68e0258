// vantelle-guide PAGES OUT: plays the guide's tasks on real windows as far as their pictures, which it leaves in OUT,
// each with a text of the places to mark: left, top, right and bottom in pixels, one a line.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <utility>

#include "tests/guide/player.h"
#include "ui/message.h"
#include "ui/session.h"
#include "ui/style.h"
#include "ui/win32/picture.h"

namespace Guide {

namespace {

// Steps run at a timer, which comes after all other messages: when the window is painted, or a loop that ends has
// ended.
class ScreenHands : public Hands {
public:
    explicit ScreenHands(std::filesystem::path out)
        : out(std::move(out)),
          window(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    ~ScreenHands() override { DestroyWindow(window); }

    void Play(std::vector<std::function<void()>> newSteps, const std::function<void()>& program) override {
        steps = std::move(newSteps);
        next = 0;
        failure.clear();
        SetTimer(window, Timer, USER_TIMER_MINIMUM, nullptr);
        program();
        KillTimer(window, Timer);
        if (!failure.empty()) throw PlayError(failure);
    }
    void Click(UI::Control& control) override { control.DispatchNotification(UI::Controls::Button::Clicked); }
    void Enter(UI::Controls::TextBox& box, const std::wstring& text) override {
        box.SetFocus();
        box.SetText(text);
        box.DispatchNotification(UI::Controls::TextBox::Changed);
    }
    void Choose(UI::Controls::ComboBox& box, int row) override { SelectRow(box, row); }
    void Select(UI::Controls::ListBox& list, int row) override { SelectRow(list, row); }
    void AnswerFile(const std::wstring&) override { throw PlayError("a picture behind a file dialog"); }
    void TakePicture(const std::string& name, UI::Window& shown, const std::vector<UI::Control*>& marked) override {
        shown.Redraw();
        if (!UI::SavePicture(shown, out / (name + ".png"))) throw PlayError(name + ": no picture");
        std::ofstream places(out / (name + ".txt"), std::ios::binary);
        for (const UI::Control* control : marked) {
            places << control->GetX() << ' ' << control->GetY() << ' ' << control->GetRight() << ' '
                   << control->GetBottom() << '\n';
        }
    }

private:
    static constexpr UINT_PTR Timer = 1;

    static void SelectRow(UI::Controls::AnyItemList& list, int row) {
        list.SetSelection(row);
        list.DispatchNotification(UI::Controls::AnyItemList::SelectionChanged);
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
        reinterpret_cast<ScreenHands*>(GetWindowLongPtrW(window, GWLP_USERDATA))->Step();
        return 0;
    }

    // No exception goes through the system's own calls.
    void Step() {
        if (!UI::Window::GetRunning()) return;
        if (!failure.empty() || next == steps.size()) return UI::EndRun(UI::IdCancel);
        try {
            steps[next++]();
        } catch (const PlayError& error) {
            failure = error.what();
        }
    }

    std::filesystem::path out;
    HWND window;
    std::vector<std::function<void()>> steps;
    std::size_t next = 0;
    std::string failure;
};

int TakePictures(const std::filesystem::path& pages, const std::filesystem::path& out) {
    const UI::Session session;
    UI::SetAppearance(UI::Appearance{96, UI::Theme::Light});
    // The pointer shall be over none of the windows.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    ScreenHands hands(out);
    for (const Page& page : ReadPages(pages)) {
        for (const Task& task : page.tasks) {
            const Task shown = CutBehindLastPicture(task);
            if (!shown.steps.empty()) Player(hands).Play(shown);
        }
    }
    return 0;
}

}  // namespace

}  // namespace Guide

int main(int count, char** words) {
    if (count != 3) {
        std::puts("usage: vantelle-guide PAGES OUT");
        return 2;
    }
    try {
        return Guide::TakePictures(words[1], words[2]);
    } catch (const std::exception& error) {
        std::printf("vantelle-guide: %s\n", error.what());
        return 1;
    }
}
