#pragma once

#include "model/displayid/section.h"
#include "model/edid/extension_block.h"

namespace VNT {

struct EdidDisplayIdSectionExtensionBlockFields {
    DisplayIdSection section;
    bool operator==(const EdidDisplayIdSectionExtensionBlockFields&) const = default;
};

struct EdidDisplayIdSectionExtensionBlockAllFields : EdidDisplayIdSectionExtensionBlockFields {
    Bytes raw;            // the whole area where it is no section
    Bytes tail;           // what stands behind a section
    int checksum = 0x90;  // that of a section without content
    bool operator==(const EdidDisplayIdSectionExtensionBlockAllFields&) const = default;
};

// DisplayID 1.3, appendix B: a section in an extension block of the EDID.
class EdidDisplayIdSectionExtensionBlock
    : public TEdidExtensionBlock<EdidDisplayIdSectionExtensionBlock, EdidExtensionBlockTypeId::DisplayIdSection,
                                 EdidDisplayIdSectionExtensionBlockFields,
                                 EdidDisplayIdSectionExtensionBlockAllFields> {
public:
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{datablockcounttext}",
                                       U"DisplayID v{version}"};

    EdidDisplayIdSectionExtensionBlock() = default;
    explicit EdidDisplayIdSectionExtensionBlock(const EdidDisplayIdSectionExtensionBlockFields& fields) {
        SetFields(fields);
    }

    // What a list doesn't take is kept beside it, whatever the bytes are.
    bool IsValidAllAsRead() const override { return true; }
    void Normalize();
    void FillTexts(TextTable& table) const;

    template <class IO>
    static void Map(IO& io, auto& block) {
        io.Constant(8, EdidExtensionBlockTypeId::DisplayIdSection);
        io.Area(SectionBytes, [&block](auto& area) {
            const bool isSection = area.Optional("section", block.section, block.raw.IsEmpty(), SectionBytes);
            const int behind = SectionBytes - block.section.GetSize();
            if (isSection) {
                area.Rest("tail", block.tail, Exactly(behind));
            } else {
                area.Rest("raw", block.raw, {CountLimits{0, 0}, CountLimits{SectionBytes, SectionBytes}});
            }
        });
        MapChecksum(io, block.checksum);
    }

private:
    static constexpr int SectionBytes = DisplayIdSection::ExtensionBytes;
};

}  // namespace VNT
