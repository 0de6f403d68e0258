// What a screen reader is told of a control: an object of ours in place of the system's, which takes everything that
// draws itself for a push button and knows neither names nor hints.
#pragma once

#include "ui/win32/platform.h"

namespace UI::Win32 {

// The answer to WM_GETOBJECT; 0 leaves it to the control's class.
LRESULT AnswerReader(const Control& control, WPARAM wParam, LPARAM lParam);

// After the outermost modal loop: who still holds an object has lost it. The object library is the loop's only, for
// what reads the monitors joins it in another way.
void DismissReaders();

}  // namespace UI::Win32
