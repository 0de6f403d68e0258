// A user who does anything at all: random keys, clicks and texts on whatever window is in front.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>

#include "store/memory/memory_platform.h"
#include "tests/monkey/shown.h"
#include "tests/monkey/user.h"

namespace Testing {

// Where the monkey's decisions come from.
class Dice {
public:
    virtual ~Dice() = default;
    // 0 to `sides` - 1.
    virtual int Roll(int sides) = 0;
    // The monkey tells each action; it goes home when there are none left.
    virtual void Pass() = 0;
    virtual bool HasMore() const = 0;
};

// Something is wrong; the text tells the last actions too.
class Finding : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Runs the whole program over a machine in memory, again and again until the dice end, and looks at what is shown after
// each action. It knows the main window; every form behind it is driven by the kinds of its controls alone, so a form
// that comes later is driven too.
class Monkey {
public:
    // `displays` of the samples; imported and exported files stand in `folder`.
    Monkey(Dice& dice, int displays, std::filesystem::path folder);

    // Throws what it finds.
    void Work();
    // The same with one form alone, which `open` runs.
    void WorkOn(const std::function<void()>& open);

    // How often each window came to the front, by the name of its class.
    const std::map<std::wstring, int>& GetSeen() const { return seen; }
    int CountSessions() const { return sessions; }
    // How many controls were touched and put back, by kind.
    const std::map<UI::ControlKind, int>& GetPutBacks() const { return putBacks; }

private:
    // Of the files, the last hold anything, and something else in each session.
    static constexpr int FileCount = 8;
    static constexpr int WildFiles = 2;
    static constexpr int WildFile = FileCount - WildFiles;

    struct Action {
        std::wstring window;
        const wchar_t* what;
        std::wstring where;
    };

    // Files are written when a dialog is answered with them: most never are.
    std::filesystem::path PutFile(int index);
    void RunProgram();
    int Edit(VNT::DisplayList& displays);
    void CheckSaved(int result, const VNT::DisplayList& edited);
    // One step of the script: an action, and the next step behind it.
    void Step();
    void LookAt(const UI::Window& window);
    void Act();
    void ActOn(UI::Control& control);
    void ActOnText(UI::Controls::TextBox& box);
    void ActOnList(UI::Controls::ListBox& list);
    // A random control that can be used, or any after a few tries.
    UI::Control& Pick();
    // Touches a control and puts it back: all is seen as it was, OK as open as before, and the displays have their
    // bytes.
    void PutBack(UI::Control& control);
    // Changes what the control holds, then puts it back as it was; false for one that can't be.
    bool ChangeAndBack(UI::Control& control);
    void PressAnyKey();
    void AnswerDialogs();
    void Check();
    void Note(const wchar_t* what, const std::wstring& where = {});
    [[noreturn]] void Report(const std::wstring& what) const;
    void Expect(const std::wstring& difference) const {
        if (!difference.empty()) Report(difference);
    }
    // In front stands the main window.
    bool IsMain() const { return view && !user->GetWindow().GetParent(); }
    bool IsOneIn(int sides) { return dice.Roll(sides) == 0; }
    std::wstring MakeText();

    Dice& dice;
    std::filesystem::path folder;
    std::unique_ptr<User> user = MakeUser();
    VNT::MemoryPlatform platform;
    std::set<int> put;  // the files that were written
    unsigned wildSeeds[WildFiles]{};
    std::unique_ptr<MainWindowView> view;          // of the main window while it runs
    const MainWindow* mainWindow = nullptr;        // which it is
    std::deque<Action> notes;                      // the last actions
    UI::Handle front = nullptr;                    // the window that was acted on last
    UI::Control* touched = nullptr;                // its control that was
    std::vector<std::vector<UI::Control*>> kinds;  // its controls by kind, but for those that only show
    std::map<std::wstring, int> seen;
    int checks = 0;
    std::map<UI::ControlKind, int> putBacks;
    int sessions = 0;
    int writes = 0;
};

}  // namespace Testing
