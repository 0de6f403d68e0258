#pragma once

#include "model/core/bytes.h"
#include "model/core/list.h"

namespace VNT {

// A two-byte standard timing slot. Any two bytes are one, and go back as they were read; 01 01 is the unused slot.
class EdidStandardResolution {
public:
    static constexpr int FrameSize = 2;

    bool Read(ByteRange range) {
        if (!range.Limit(FrameSize)) return false;
        first_ = static_cast<int>(range.ReadLsb(8));
        second_ = static_cast<int>(range.ReadLsb(8));
        return true;
    }
    bool Write(ByteRange range) const {
        if (!range.Limit(FrameSize)) return false;
        range.WriteLsb(8, static_cast<std::uint32_t>(first_));
        range.WriteLsb(8, static_cast<std::uint32_t>(second_));
        return true;
    }
    bool IsValid() const { return true; }
    bool IsValidAll() const { return true; }
    void GetText(String& out) const { out = String(); }
    bool operator==(const EdidStandardResolution&) const = default;

private:
    int first_ = 1;
    int second_ = 1;
};

using EdidStandardResolutionList = TSlotList<EdidStandardResolution, EdidStandardResolution::FrameSize>;

}  // namespace VNT
