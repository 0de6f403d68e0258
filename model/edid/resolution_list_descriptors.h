#pragma once

#include "model/edid/descriptor.h"
#include "model/timing/cvt_resolution.h"
#include "model/timing/standard_resolution.h"

namespace VNT {

struct EdidCvtResolutionListDescriptorFields {
    int version = 1;
    TFilledSlotList<EdidCvtResolutionList> resolutions;
    bool operator==(const EdidCvtResolutionListDescriptorFields&) const = default;
};

struct EdidCvtResolutionListDescriptorAllFields : EdidCvtResolutionListDescriptorFields, EdidDescriptorFrame {
    bool operator==(const EdidCvtResolutionListDescriptorAllFields&) const = default;
};

// Four CVT codes of three bytes (E-EDID 1.4, 3.10.3.8).
class EdidCvtResolutionListDescriptor
    : public TEdidDescriptor<EdidCvtResolutionListDescriptor, EdidDescriptorTypeId::CvtResolutionList,
                             EdidCvtResolutionListDescriptorFields, EdidCvtResolutionListDescriptorAllFields> {
public:
    static constexpr SlotListLimits ListLimits{4, EdidCvtResolutionList::SlotBytes};
    static constexpr TextFormat Format = ResolutionCountFormat(U"CVT resolutions");

    EdidCvtResolutionListDescriptor() = default;
    explicit EdidCvtResolutionListDescriptor(const EdidCvtResolutionListDescriptorFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const { FillResolutionCount(table, resolutions.GetCount()); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        io.Number("version", 8, item.version, Within({1, 255}, {0, 255}));
        const bool fits = ListLimits.Contains(item.resolutions);
        io.Part("resolutions", 12, item.resolutions, fits, fits);
    }
};

struct EdidStandardResolutionListDescriptorFields {
    TFilledSlotList<EdidStandardResolutionList> resolutions;
    bool operator==(const EdidStandardResolutionListDescriptorFields&) const = default;
};

struct EdidStandardResolutionListDescriptorAllFields : EdidStandardResolutionListDescriptorFields, EdidDescriptorFrame {
    int lastByte = 0x0A;
    bool operator==(const EdidStandardResolutionListDescriptorAllFields&) const = default;
};

// Six more standard timings of two bytes (E-EDID 1.4, 3.10.3.6).
class EdidStandardResolutionListDescriptor
    : public TEdidDescriptor<EdidStandardResolutionListDescriptor, EdidDescriptorTypeId::StandardResolutionList,
                             EdidStandardResolutionListDescriptorFields,
                             EdidStandardResolutionListDescriptorAllFields> {
public:
    static constexpr SlotListLimits ListLimits{6, EdidStandardResolutionList::SlotBytes};
    static constexpr TextFormat Format = ResolutionCountFormat(U"Standard resolutions");

    EdidStandardResolutionListDescriptor() = default;
    explicit EdidStandardResolutionListDescriptor(const EdidStandardResolutionListDescriptorFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const { FillResolutionCount(table, resolutions.GetCount()); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        const bool fits = ListLimits.Contains(item.resolutions);
        io.Part("resolutions", 12, item.resolutions, fits, fits);
        io.Number("lastByte", 8, item.lastByte, Within({0x0A, 0x0A}, {0, 255}));
    }
};

}  // namespace VNT
