#pragma once

#include "model/edid/descriptor.h"

namespace VNT {

// The two highest coefficients of each color's transfer polynomial (DCM, E-EDID 1.4, 3.10.3.7).
struct EdidColorManagementDescriptorFields {
    int version = 3;
    Decimal redA3, redA2;
    Decimal greenA3, greenA2;
    Decimal blueA3, blueA2;
    bool operator==(const EdidColorManagementDescriptorFields&) const = default;
};

struct EdidColorManagementDescriptorAllFields : EdidColorManagementDescriptorFields, EdidDescriptorFrame {
    bool operator==(const EdidColorManagementDescriptorAllFields&) const = default;
};

// The class writes and reads its bytes, yet the holder reads them as EdidOtherDescriptor: what was read is kept raw.
class EdidColorManagementDescriptor
    : public TEdidDescriptor<EdidColorManagementDescriptor, EdidDescriptorTypeId::ColorManagement,
                             EdidColorManagementDescriptorFields, EdidColorManagementDescriptorAllFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Color management"};

    EdidColorManagementDescriptor() = default;
    explicit EdidColorManagementDescriptor(const EdidColorManagementDescriptorFields& fields) { SetFields(fields); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        io.Number("version", 8, item.version, Within({3, 255}, {0, 255}));
        io.Number("redA3", 16, item.redA3, Coding, CoefficientLimits);
        io.Number("redA2", 16, item.redA2, Coding, CoefficientLimits);
        io.Number("greenA3", 16, item.greenA3, Coding, CoefficientLimits);
        io.Number("greenA2", 16, item.greenA2, Coding, CoefficientLimits);
        io.Number("blueA3", 16, item.blueA3, Coding, CoefficientLimits);
        io.Number("blueA2", 16, item.blueA2, Coding, CoefficientLimits);
    }

private:
    // Hundredths in a signed 16-bit number.
    struct CoefficientCoding {
        static Decimal Decode(std::uint32_t raw) {
            const auto value = static_cast<std::int64_t>(raw);
            return Decimal(value < 32768 ? value : value - 65536, 2);
        }
        static std::int64_t Encode(Decimal value) { return value.ToInt(2); }
    };
    static constexpr CoefficientCoding Coding{};
    static constexpr TLimitPair<DecimalLimits> CoefficientLimits{
        DecimalLimits{Decimal(-32768, 2), Decimal(32767, 2), Decimal(1, 2), Decimal(), {}}};
};

}  // namespace VNT
