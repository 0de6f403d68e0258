#include "editor/extension_block_windows.h"

#include "editor/cta_data_block_windows.h"
#include "editor/descriptor_windows.h"
#include "editor/displayid_data_block_windows.h"
#include "editor/resolution_windows.h"
#include "editor/short_resolution_windows.h"

using namespace VNT;

EdidCtaExtensionBlockWindow::EdidCtaExtensionBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidCtaExtensionBlockWindow", L"CTA-861 Extension Block") {
    Group(L"Version").Number(Field<&Fields::version>, L"000");
    Group(L"Native detailed resolutions").Number(Field<&Fields::nativeDetailedCount>, L"00");
    Group(L"Color formats").Checks(Field<&Fields::flags>, EdidCtaExtensionBlockFlagEnum::ColorFormatTexts);
    Group(L"Flags").Checks(Field<&Fields::flags>, EdidCtaExtensionBlockFlagEnum::Texts);
    Group(L"")
        .List(
            Field<&Fields::dataBlocks>, DataBlockCaptions, [this] { return item.GetDataBlockLimits(); },
            &EditCtaDataBlock)
        .SetInserter(&InsertCtaDataBlock);
    Group(L"").List(
        Field<&Fields::descriptors>, DescriptorCaptions, [this] { return item.GetDescriptorLimits(); },
        &EditEdidDescriptor);
}

EdidVtbExtensionBlockWindow::EdidVtbExtensionBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidVtbExtensionBlockWindow", L"VTB-EXT Extension Block") {
    Group(L"Version").Number(Field<&Fields::version>, L"000");
    Group(L"").List(
        Field<&Fields::detailed>, DetailedResolutionCaptions, [this] { return item.GetLimitsOf(item.detailed); },
        [](UI::Window* parent, EdidDetailedResolution& resolution, int) {
            return EdidDetailedResolutionWindow(parent).Run(resolution);
        });
    Group(L"").List(
        Field<&Fields::cvtResolutions>, CvtResolutionCaptions, [this] { return item.GetLimitsOf(item.cvtResolutions); },
        &EditEdidCvtResolution);
    Group(L"").List(
        Field<&Fields::standardResolutions>, StandardResolutionCaptions,
        [this] { return item.GetLimitsOf(item.standardResolutions); }, &EditEdidStandardResolution);
}

EdidDisplayIdSectionExtensionBlockWindow::EdidDisplayIdSectionExtensionBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidDisplayIdSectionExtensionBlockWindow", L"DisplayID Extension Block") {
    const auto isVersion1 = [this] { return fields.version < 2; };
    Group(L"Revision").Number(Field<&Fields::revision>, L"00");
    auto type = Group(L"Product type");
    type.Row().VisibleIf(isVersion1).ComboOther(Field<&Fields::productType>, DisplayId1ProductTypeEnum::Texts, L"00");
    type.Row()
        .VisibleIf([isVersion1] { return !isVersion1(); })
        .ComboOther(Field<&Fields::productType>, DisplayId2ProductTypeEnum::Texts, L"00");
    Group(L"").List(
        Field<&Fields::dataBlocks>, DataBlockCaptions, [this] { return DisplayIdSection::GetListLimits(GetBytes()); },
        [this](UI::Window* parent, DisplayIdDataBlock& block, int bytes) {
            return EditDisplayIdDataBlock(parent, block, bytes, fields.version);
        });
}

namespace {

// A holder of a section that was not edited stays as it is.
int EditSection(UI::Window* parent, EdidExtensionBlock& holder, const DisplayIdSectionFields& before) {
    constexpr int room = DisplayIdSection::ExtensionBytes;
    DisplayIdSectionFields section = before;
    const int result = EdidDisplayIdSectionExtensionBlockWindow(parent).Run(section, room);
    if (result != UI::IdOk || (!holder.IsEmpty() && section == before)) return result;
    EdidDisplayIdSectionExtensionBlockFields fields;
    fields.section = DisplayIdSection(section, room);
    holder.Assign(EdidDisplayIdSectionExtensionBlock(fields));
    return result;
}

int EditHeldSection(UI::Window* parent, EdidExtensionBlock& holder, int) {
    EdidDisplayIdSectionExtensionBlock block;
    block.Assign(holder);
    return EditSection(parent, holder, block.section);
}

template <int version>
int EditNewSection(UI::Window* parent, EdidExtensionBlock& holder, int) {
    DisplayIdSectionFields section;
    section.version = version;
    return EditSection(parent, holder, section);
}

// The chooser offers the two versions of a section as two rows.
constexpr int NewSection1 = 0x71;
constexpr int NewSection2 = 0x72;

constexpr Forms::TFormRow<EdidExtensionBlock> ExtensionBlockForms[] = {
    Forms::FormOf<EdidCtaExtensionBlockWindow, EdidExtensionBlock>(),
    Forms::FormOf<EdidVtbExtensionBlockWindow, EdidExtensionBlock>(),
    {EdidExtensionBlockTypeId::DisplayIdSection, &EditHeldSection, false},
    {NewSection1, &EditNewSection<1>, true, "DisplayID v1"},
    {NewSection2, &EditNewSection<2>, true, "DisplayID v2"},
};

}  // namespace

std::span<const Forms::TFormRow<EdidExtensionBlock>> EdidExtensionBlockForms() { return ExtensionBlockForms; }

int EditEdidExtensionBlock(UI::Window* parent, EdidExtensionBlock& block, int bytes) {
    return Forms::EditHolder<AddEdidExtensionBlockWindow>(parent, block, bytes, ExtensionBlockForms,
                                                          EdidExtensionBlockKinds::All());
}
