#include "model/edid/edid.h"

#include "model/edid/text_descriptor.h"

namespace VNT {

namespace {

const Bytes Header{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
constexpr int EstablishedBytes = 3;
constexpr int StandardBytes = 16;
constexpr int DescriptorBytes = 72;
constexpr int MaxExtensionBytes = 255 * Edid::BlockSize;

// The EDID of new fields, normalised once: every EDID that is read begins as a copy of it.
const Edid& GetNewEdid() {
    static const Edid edid{EdidFields()};
    return edid;
}

}  // namespace

Edid::Edid() : Edid(GetNewEdid()) {}

Edid::Edid(const EdidFields& fields) : EdidFields(fields) {
    extensionBlockCount = extensionBlocks.GetCount();
    if (extensionBlocks.UpdateOverrideCount()) {
        extensionBlockCount = 1;
        extensionOverrideCount = extensionBlocks.GetCount();
    }
    checksum = GetComputedChecksum();
}

bool Edid::Read(ByteRange range) {
    range.position = 0;
    if (range.Size() < BlockSize || !range.Peek(Header.Size()).Equals(Header)) return false;
    range.SkipBytes(Header.Size());
    static const EdidProperties newProperties;
    EdidProperties readProperties = newProperties;
    readProperties.Read(range.Take(EdidProperties::FrameSize));
    properties = readProperties;
    established.GetBytes().Assign(range.Take(EstablishedBytes));
    standardResolutions.Read(range.Take(StandardBytes));
    descriptors.Read(range.Take(DescriptorBytes));
    descriptors.TrimTrailing(EdidEmptyDescriptor());
    extensionBlockCount = static_cast<int>(range.ReadLsb(8));
    checksum = static_cast<int>(range.ReadLsb(8));

    // The first block may say that there are more than the count does.
    extensionBlocks.Read(range.Take(std::min(extensionBlockCount, 1) * BlockSize));
    extensionOverrideCount = extensionBlocks.GetOverrideCount();
    const int wanted = std::max(extensionBlockCount, extensionOverrideCount);
    extensionBlocks.ReadMore(range.Take((wanted - 1) * BlockSize));
    extensionBlocks.FillUp(wanted);
    return true;
}

bool Edid::Write(ByteRange range) const {
    if (!range.Limit(GetSize()) || !IsValidAll()) return false;
    WriteBaseBlock(range.Peek(BlockSize));
    range.Drop(BlockSize);
    return extensionBlocks.Write(range);
}

void Edid::WriteBaseBlock(ByteRange range) const {
    range.Take(Header.Size()).CopyFrom(Header);
    EdidProperties(properties).Write(range.Take(EdidProperties::FrameSize));
    range.Take(EstablishedBytes).CopyFrom(established.GetBytes());
    standardResolutions.Write(range.Take(StandardBytes));
    descriptors.Write(range.Take(DescriptorBytes));
    range.WriteLsb(8, static_cast<std::uint32_t>(extensionBlockCount));
    range.WriteLsb(8, checksum == Undefined ? 0 : static_cast<std::uint32_t>(checksum));
}

EdidLimits Edid::GetLimits() const {
    EdidLimits limits = GetAllLimits();
    const int computed = GetComputedChecksum();
    limits.checksum = ValueLimits{computed, computed};
    return limits;
}

EdidLimits Edid::GetAllLimits() const {
    return {SlotListLimits::FromBytes(StandardBytes, EdidStandardResolutionList::SlotBytes),
            SlotListLimits::FromBytes(DescriptorBytes, EdidDescriptorList::SlotBytes),
            SlotListLimits::FromBytes(MaxExtensionBytes, EdidExtensionBlockList::SlotBytes),
            ValueLimits{0, 255, 0, 0, {Undefined}}};
}

EdidStatus Edid::GetStatus(const EdidLimits& limits) const {
    EdidStatus status;
    const int blocks = extensionBlocks.GetCount();
    status.properties = EdidProperties(properties).IsValidAll();
    status.standardResolutions = limits.standardResolutions.Contains(standardResolutions);
    status.descriptors = limits.descriptors.Contains(descriptors);
    status.extensionBlocks = limits.extensionBlocks.Contains(extensionBlocks);
    status.checksum = limits.checksum.Contains(checksum);
    if (extensionOverrideCount == Undefined) {
        status.counts = extensionBlockCount == blocks;
    } else if (extensionOverrideCount <= extensionBlockCount) {
        status.counts = extensionBlockCount == blocks && extensionOverrideCount >= 0;
    } else {
        status.counts = extensionBlockCount >= 1 && extensionOverrideCount == blocks;
    }
    return status;
}

Bytes Edid::GetBytes() const {
    Bytes bytes(GetSize(), 0);
    return Write(bytes) ? bytes : Bytes();
}

int Edid::GetComputedChecksum() const {
    // Only a whole that can be written has a checksum; the one that stands here has no part in that.
    EdidStatus status = GetStatus(GetAllLimits());
    status.checksum = true;
    if (!status.All()) return Undefined;
    Bytes scratch(BlockSize, 0);
    WriteBaseBlock(scratch);
    return ComputeChecksum(scratch);
}

EdidIdentity Edid::GetIdentity() const {
    EdidNameDescriptor name;
    EdidSerialNumberDescriptor serialNumber;
    descriptors.Find(name);
    descriptors.Find(serialNumber);
    return {properties.vendorId, properties.productId, properties.serialNumber, properties.week, properties.year,
            name.text,           serialNumber.text};
}

}  // namespace VNT
