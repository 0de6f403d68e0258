// The look of a combo box that has not dropped down, for the backends that draw it and for who looks at it.
#pragma once

#include "ui/style.h"

namespace UI {

// High contrast keeps the normal face in the hot states, where their text could not be read.
inline StateStyle GetClosedStyle(const ComboBoxStyle& style, ControlState state) {
    const StateStyle& normal = style.States[ControlState::Normal];
    StateStyle closed = style.States[state];
    if (state != ControlState::Disabled && closed.Background == normal.Background) closed.Text = normal.Text;
    return closed;
}

}  // namespace UI
