// What a modal loop makes of a key before the control with the focus sees it, for backends whose system has no dialogs
// of its own.
#pragma once

#include "ui/message.h"
#include "ui/types.h"

namespace UI {

class Control;
class Window;

namespace DialogKeys {

// Whether `target` wants the key for itself, as one of `DialogCode`.
bool Wants(Handle target, Key key, int code);

// What the control's standard class answers to `GetDialogCode`.
MessageResult GetStandardCode(const Control& control, Key key);

// True when the key was the window's: Tab and Shift+Tab go on to the next stop, an arrow that `target` has no use for
// does nothing, Enter and Esc become commands.
bool Press(Window& window, Handle target, Key key, bool withShift);

}  // namespace DialogKeys

}  // namespace UI
