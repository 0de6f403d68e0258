// Every control in every state.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "ui/controls.h"
#include "ui/window.h"

// A control that looks as it would in one state. In the normal state it is alive.
template <class Base>
class Shown : public Base {
public:
    template <class... Arguments>
    Shown(UI::Window& window, UI::ControlState state, Arguments&&... arguments)
        : Base(window, std::forward<Arguments>(arguments)...), state(state) {
        if (state == UI::ControlState::Disabled) Base::SetEnabled(false);
    }

    UI::ControlState GetState(bool pressed = false) const override {
        return IsAlive() ? Base::GetState(pressed) : state;
    }
    bool HasFocus() const override { return IsAlive() ? Base::HasFocus() : LooksFocused(); }
    bool ShowsFocus() const override { return IsAlive() ? Base::ShowsFocus() : LooksFocused(); }

private:
    bool IsAlive() const { return state == UI::ControlState::Normal; }
    bool LooksFocused() const override {
        return state == UI::ControlState::Focused || state == UI::ControlState::HotFocused;
    }

    UI::ControlState state;
};

class GalleryWindow : public UI::Window {
public:
    GalleryWindow(int dpi, UI::Theme theme);

private:
    using Maker = std::function<UI::Control*(UI::ControlState)>;

    template <class T, class... Arguments>
    T* Add(Arguments&&... arguments);
    // What `fill` adds, within a group box.
    void AddSection(const std::wstring& caption, const std::function<void()>& fill);
    // A row of one kind of control, one for each state that `make` has a control for.
    void AddRow(const std::wstring& caption, int height, const Maker& make);
    void AddButtons();
    void AddChecks();
    void AddBoxes();
    void AddLists();
    void AddGroups();
    int GetColumn(int index) const;

    std::vector<std::unique_ptr<UI::Control>> controls;
    int y = 0;
    int cellWidth;
    int captionWidth;
};
