#pragma once

#include "model/core/flags.h"
#include "model/edid/descriptor.h"
#include "model/edid/extension_block.h"
#include "model/edid/properties.h"
#include "model/timing/standard_resolution.h"

namespace VNT {

// The 17 named bits of the three established timing bytes (E-EDID 1.4, 3.8), from bit 7 of the first byte on.
struct EdidEstablishedResolutionFlagEnum {
    enum Enum : int {};
    static constexpr const char* Texts[] = {
        "720x400 @ 70 Hz",   "720x400 @ 88 Hz",   "640x480 @ 60 Hz",  "640x480 @ 67 Hz",  "640x480 @ 72 Hz",
        "640x480 @ 75 Hz",   "800x600 @ 56 Hz",   "800x600 @ 60 Hz",  "800x600 @ 72 Hz",  "800x600 @ 75 Hz",
        "832x624 @ 75 Hz",   "1024x768i @ 87 Hz", "1024x768 @ 60 Hz", "1024x768 @ 70 Hz", "1024x768 @ 75 Hz",
        "1280x1024 @ 75 Hz", "1152x870 @ 75 Hz"};
};

struct EdidFields {
    EdidPropertiesFields properties = EdidProperties();
    TBitsMsb<EdidEstablishedResolutionFlagEnum, 24> established;
    TFilledSlotList<EdidStandardResolutionList> standardResolutions;
    EdidDescriptorList descriptors;
    EdidExtensionBlockList extensionBlocks;
    bool operator==(const EdidFields&) const = default;
};

// What a list of displays shows of one.
struct EdidIdentity {
    String vendorId;
    int productId = 0;
    std::int64_t serialNumber = Undefined;
    int week = Undefined;
    int year = Undefined;
    String name;              // of the first name descriptor, empty if none
    String serialNumberText;  // of the first serial number descriptor, empty if none
};

struct EdidLimits {
    SlotListLimits standardResolutions;
    SlotListLimits descriptors;
    SlotListLimits extensionBlocks;
    ValueLimits checksum;
};

// One bit per rule, against either set of limits.
struct EdidStatus {
    bool properties = false;
    bool standardResolutions = false;
    bool descriptors = false;
    bool extensionBlocks = false;
    bool checksum = false;
    bool counts = false;  // byte 126, the override count and the blocks agree
    bool All() const {
        return properties && standardResolutions && descriptors && extensionBlocks && checksum && counts;
    }
};

// A monitor's whole EDID: the 128-byte base block and the extension blocks behind it (E-EDID 1.4).
class Edid : public EdidFields {
public:
    static constexpr int BlockSize = 128;

    int extensionBlockCount = 0;             // byte 126
    int extensionOverrideCount = Undefined;  // what the first extension's override block states
    int checksum = Undefined;                // byte 127 as read, right or wrong

    Edid();
    // Normalises: counts the blocks, brings an override block up to date, computes the checksum.
    explicit Edid(const EdidFields& fields);

    // False, with nothing changed, below 128 bytes or without the header 00 FF FF FF FF FF FF 00. Blocks that the range
    // lacks become default blocks; bytes behind the last counted block are not looked at.
    bool Read(ByteRange range);
    // False, with nothing written, if the range is shorter than `GetSize` or the EDID is not IsValidAll.
    bool Write(ByteRange range) const;
    bool IsValid() const { return GetStatus(GetLimits()).All() && EdidProperties(properties).IsValid(); }
    bool IsValidAll() const { return GetStatus(GetAllLimits()).All(); }
    EdidLimits GetLimits() const;
    EdidLimits GetAllLimits() const;
    EdidStatus GetStatus(const EdidLimits& limits) const;

    int GetSize() const { return BlockSize + extensionBlocks.GetSize(); }
    Bytes GetBytes() const;  // empty if `Write` fails
    int GetComputedChecksum() const;
    EdidIdentity GetIdentity() const;
    bool operator==(const Edid&) const = default;

private:
    void WriteBaseBlock(ByteRange range) const;
};

}  // namespace VNT
