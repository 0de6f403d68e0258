// Plays the tasks of the guide on the program, on any backend, over a machine in memory. The commands, each with the
// texts that the reader sees; where several lead to a control, each is looked for behind the one before:
//
//     choose "Display" "QOR2401 - QORVEL 24 (active)"     a row of the box with this label
//     select "Standard resolutions" "1280x720 @ 60 Hz"    a row of the list with this caption
//     click "Standard resolutions" "Add..."               a button, a check box or a radio button
//     enter "Active" #2 "1080"                            types over what stands in a box
//     see "Add Descriptor"                                something on the screen reads so
//     gone "1280x720 @ 60 Hz"                             nothing does
//     checked "Underscans PC resolutions"                 and `unchecked`
//     red "Active" #2                                     the box shows that it is invalid; `good` the opposite
//     off "OK"                                            can't be pressed now; `on` the opposite
//     picture "name" "OK" "Add..."                        pictures/name.png, these controls marked
//     file "monitor.bin"                                  the answer to the dialog that the next click opens
//     again                                               the program has ended, having saved; it starts anew
#pragma once

#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/memory/memory_platform.h"
#include "tests/guide/script.h"
#include "ui/controls.h"
#include "ui/window.h"

namespace Guide {

// What a step asks for and the program hasn't.
class PlayError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The hands of the reader: how a backend is clicked and typed on.
class Hands {
public:
    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;
    // Has the steps run inside the modal loops, one after the other, while `program` runs. A step that opens a further
    // window has those behind it run in there.
    virtual void Play(std::vector<std::function<void()>> steps, const std::function<void()>& program) = 0;
    virtual void Click(UI::Control& control) = 0;
    virtual void Enter(UI::Controls::TextBox& box, const std::wstring& text) = 0;
    virtual void Choose(UI::Controls::ComboBox& box, int row) = 0;
    virtual void Select(UI::Controls::ListBox& list, int row) = 0;
    virtual void AnswerFile(const std::wstring& name) = 0;
    virtual void TakePicture(const std::string& name, UI::Window& window, const std::vector<UI::Control*>& marked) = 0;
};

// The displays that the guide tells of.
void AddGuideDisplays(VNT::MemoryPlatform& platform);

class Player {
public:
    explicit Player(Hands& hands) : hands_(hands) { AddGuideDisplays(platform_); }

    // Throws `PlayError` at what is not as the guide says.
    void Play(const Task& task);
    const std::set<std::string>& GetPictures() const { return pictures_; }

private:
    void Run(const Command& command);
    void CheckShown(const Step& step);
    void LookAround();
    void TakePicture(const Command& command);

    Hands& hands_;
    VNT::MemoryPlatform platform_;
    std::set<std::wstring> seen_;  // since the step began
    std::set<std::string> pictures_;
};

// The same task as far as its last picture. What it needs no file dialog for can be played on a real screen.
Task CutBehindLastPicture(const Task& task);

}  // namespace Guide
