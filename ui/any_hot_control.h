// What all controls share that change their look under the pointer.
#pragma once

#include "ui/control.h"

namespace UI::Controls {

class AnyHotControl : public Control {
public:
    // Set when the pointer comes in, cleared when it leaves.
    bool IsHot() const { return hot; }
    // The state to draw; `pressed` is what only the caller's item or the drop-down list knows.
    virtual ControlState GetState(bool pressed = false) const;

protected:
    AnyHotControl(Window& window, ControlKind kind, const std::wstring& text, unsigned style);
    // Whether the focused look is due.
    virtual bool LooksFocused() const { return HasFocus(); }
    // Whether the look changes at once when the pointer leaves.
    virtual bool RedrawsOnLeave() const { return true; }
    // What the coming and going of the pointer changes.
    virtual void RedrawHot() { Redraw(); }
    // Redraws whenever the focus comes or goes.
    void RedrawWithFocus();
    // A second fast press of the mouse button counts as a press of its own.
    void TakeDoubleClickAsPress();

private:
    bool hot = false;
};

}  // namespace UI::Controls
