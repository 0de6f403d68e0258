#pragma once

#include "model/core/flags.h"
#include "model/edid/resolution_list_descriptors.h"

namespace VNT {

// The 44 named bits of the Established Timings III descriptor (E-EDID 1.4, 3.10.3.9), from bit 7 of byte 6 on.
struct EdidEstablished3ResolutionFlagEnum {
    enum Enum : int {};
    static constexpr const char* Texts[] = {
        "640x350 @ 85 Hz",       "640x400 @ 85 Hz",        "720x400 @ 85 Hz",        "640x480 @ 85 Hz",
        "848x480 @ 60 Hz",       "800x600 @ 85 Hz",        "1024x768 @ 85 Hz",       "1152x864 @ 75 Hz",
        "1280x768 @ 60 Hz (RB)", "1280x768 @ 60 Hz",       "1280x768 @ 75 Hz",       "1280x768 @ 85 Hz",
        "1280x960 @ 60 Hz",      "1280x960 @ 85 Hz",       "1280x1024 @ 60 Hz",      "1280x1024 @ 85 Hz",
        "1360x768 @ 60 Hz",      "1440x900 @ 60 Hz (RB)",  "1440x900 @ 60 Hz",       "1440x900 @ 75 Hz",
        "1440x900 @ 85 Hz",      "1400x1050 @ 60 Hz (RB)", "1400x1050 @ 60 Hz",      "1400x1050 @ 75 Hz",
        "1400x1050 @ 85 Hz",     "1680x1050 @ 60 Hz (RB)", "1680x1050 @ 60 Hz",      "1680x1050 @ 75 Hz",
        "1680x1050 @ 85 Hz",     "1600x1200 @ 60 Hz",      "1600x1200 @ 65 Hz",      "1600x1200 @ 70 Hz",
        "1600x1200 @ 75 Hz",     "1600x1200 @ 85 Hz",      "1792x1344 @ 60 Hz",      "1792x1344 @ 75 Hz",
        "1856x1392 @ 60 Hz",     "1856x1392 @ 75 Hz",      "1920x1200 @ 60 Hz (RB)", "1920x1200 @ 60 Hz",
        "1920x1200 @ 75 Hz",     "1920x1200 @ 85 Hz",      "1920x1440 @ 60 Hz",      "1920x1440 @ 75 Hz",
    };
};

struct EdidEstablished3ResolutionFlagsDescriptorFields {
    int revision = 10;
    TBitsMsb<EdidEstablished3ResolutionFlagEnum, 96> resolutions;
    bool operator==(const EdidEstablished3ResolutionFlagsDescriptorFields&) const = default;
};

struct EdidEstablished3ResolutionFlagsDescriptorAllFields : EdidEstablished3ResolutionFlagsDescriptorFields,
                                                            EdidDescriptorFrame {
    bool operator==(const EdidEstablished3ResolutionFlagsDescriptorAllFields&) const = default;
};

class EdidEstablished3ResolutionFlagsDescriptor
    : public TEdidDescriptor<
          EdidEstablished3ResolutionFlagsDescriptor, EdidDescriptorTypeId::Established3ResolutionFlags,
          EdidEstablished3ResolutionFlagsDescriptorFields, EdidEstablished3ResolutionFlagsDescriptorAllFields> {
public:
    static constexpr TextFormat Format = ResolutionCountFormat(U"Established III resolutions");

    EdidEstablished3ResolutionFlagsDescriptor() = default;
    explicit EdidEstablished3ResolutionFlagsDescriptor(const EdidEstablished3ResolutionFlagsDescriptorFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const { FillResolutionCount(table, resolutions.CountSet()); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        io.Number("revision", 8, item.revision, Within({10, 255}, {0, 255}));
        io.Data("resolutions", 12, item.resolutions.GetBytes(), Exactly(12));
    }
};

}  // namespace VNT
