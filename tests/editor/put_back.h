// A user who touches everything and puts it back as it was, in every form that a window leads to.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "editor/any_window.h"
#include "ui/headless/driver.h"

namespace VNT::Testing {

class PutBack {
public:
    // `mostStates`: of each class of forms so many states are touched, all others only opened and confirmed.
    PutBack(UI::Headless::Driver& driver, int mostStates) : driver(driver), mostStates(mostStates) {}

    // In the loop of a window: opens whatever it leads to, and confirms it. `check` runs behind each form that was
    // confirmed, and tells what is wrong.
    void Walk(const std::function<std::wstring()>& check);

    // Touches one control of the front window that takes input and opens nothing.
    void TouchOne(UI::Control& control);
    // What went wrong, each with the way to it.
    const std::vector<std::string>& GetFaults() const { return faults; }
    int CountForms() const { return forms; }
    int CountInputs() const { return inputs; }
    const std::map<std::wstring, int>& GetTouched() const { return touched; }

private:
    // All that is seen of the window; the choice of a list's rows is not.
    std::vector<std::wstring> Look() const;
    void OpenAll(const std::function<std::wstring()>& check);
    void Open(UI::Controls::Button& button, const std::function<std::wstring()>& check);
    void Visit();
    void Leave();
    void ShowMore();
    bool IsNewState();
    void TouchAll();
    void Touch(UI::Controls::TextBox& box);
    void Touch(UI::Controls::CheckBox& box);
    void Touch(UI::Controls::RadioButton& button);
    void Touch(UI::Controls::ComboBox& box);
    void Touch(UI::Controls::ListBox& list);
    // Does `change` and then `putBack`: all has to be seen as before.
    void Try(const std::wstring& what, const std::function<void()>& change, const std::function<void()>& putBack);
    // OK is open, or something says why not.
    void ExpectReason(const std::wstring& what);
    void Fault(const std::wstring& text);

    UI::Headless::Driver& driver;
    int mostStates;
    std::vector<std::wstring> path;
    std::vector<std::string> faults;
    std::map<std::wstring, int> touched;
    std::set<std::size_t> states;
    int forms = 0;
    int inputs = 0;
};

}  // namespace VNT::Testing
