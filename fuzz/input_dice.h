#pragma once

#include <cstddef>
#include <cstdint>

#include "tests/monkey/monkey.h"
#include "ui/headless/desktop.h"

// Each byte of the input is a decision. Nothing is drawn, since nobody looks.
class InputDice : public Testing::Dice {
public:
    InputDice(const std::uint8_t* data, std::size_t size) : data(data), size(size) {
        UI::Headless::GetDesktop().Draws = false;
    }
    int Roll(int sides) override { return HasMore() ? data[at++] % sides : 0; }
    void Pass() override {}
    bool HasMore() const override { return at < size; }

private:
    const std::uint8_t* data;
    std::size_t size;
    std::size_t at = 0;
};
