#include "cli/check.h"

#include <ostream>

#include "cli/command.h"
#include "cli/edid_files.h"
#include "cli/field_faults.h"
#include "cli/outline.h"
#include "cli/words.h"
#include "model/edid/file_formats.h"

namespace VNT::Cli {

namespace {

std::string Hex(int byte) { return NumberText(byte, 16, 2, true).ToUtf8(); }

void CheckChecksums(const Bytes& bytes, int blocks, std::vector<std::string>& reasons) {
    for (int block = 0; block < blocks && (block + 1) * Edid::BlockSize <= bytes.Size(); ++block) {
        const Bytes part = bytes.Slice(block * Edid::BlockSize, Edid::BlockSize);
        const int stored = part.At(Edid::BlockSize - 1);
        const int computed = ComputeChecksum(part);
        if (stored == computed) continue;
        reasons.push_back("checksum of block " + std::to_string(block) + " is " + Hex(stored) + ", should be " +
                          Hex(computed));
    }
}

// Of the blocks that were read whole: what the import filled in stands in no file.
void CheckRoundTrip(const Edid& edid, const Bytes& bytes, int blocks, std::vector<std::string>& reasons) {
    const Bytes written = edid.GetBytes();
    const int count = std::min(bytes.Size() / Edid::BlockSize, blocks) * Edid::BlockSize;
    for (int i = 0; i < count; ++i) {
        if (i < written.Size() && written.At(i) == bytes.At(i)) continue;
        reasons.push_back("round trip differs at byte " + std::to_string(i));
        return;
    }
}

// The bytes that an item of the family may take.
template <class Item>
constexpr int RoomOf() {
    if constexpr (requires { Item::FrameSize; }) {
        return Item::FrameSize;
    } else {
        return Item::MaxSize;
    }
}

template <class Item>
void CheckItem(const std::string& path, const Item& item, std::vector<std::string>& reasons) {
    std::vector<std::string> faults;
    if constexpr (requires(Item copy, FaultSink sink) { copy.TellFields(RoomOf<Item>(), sink); }) {
        faults = FieldFaultsOf(item, RoomOf<Item>());
    } else {
        faults = FieldFaults({item, RoomOf<Item>()});
    }
    if (faults.empty() && !item.IsValid()) reasons.push_back(path + " out of limits");
    for (const std::string& fault : faults) reasons.push_back(path + "/" + fault);
}

template <class List>
void CheckList(const std::string& path, const List& list, std::vector<std::string>& reasons) {
    for (int i = 0; i < list.GetCount(); ++i) CheckItem(path + "/" + std::to_string(i), list.At(i), reasons);
}

// Bytes of a kind that is known, which its class could not have written back.
bool IsRefused(const EdidExtensionBlock& held) {
    EdidOtherExtensionBlock other;
    return other.Assign(held) &&
           (other.tag == EdidExtensionBlockTypeId::Cta || other.tag == EdidExtensionBlockTypeId::Vtb ||
            other.tag == EdidExtensionBlockTypeId::DisplayIdSection);
}

void CheckExtensions(const EdidExtensionBlockList& blocks, std::vector<std::string>& reasons) {
    for (int i = 0; i < blocks.GetCount(); ++i) {
        const EdidExtensionBlock& block = blocks.At(i);
        const std::string path = "extensions/" + std::to_string(i);
        if (IsRefused(block)) {
            reasons.push_back(path + " out of limits");
        } else {
            CheckItem(path, block, reasons);
        }
    }
}

}  // namespace

std::vector<std::string> CheckEdid(const ImportedFile& file) {
    const Edid& edid = file.edid;
    std::vector<std::string> reasons;
    const int blocks = 1 + std::max(edid.extensionBlockCount, edid.extensionOverrideCount);
    CheckChecksums(file.bytes, blocks, reasons);
    for (std::string& text : LossTexts(file)) reasons.push_back(std::move(text));
    CheckRoundTrip(edid, file.bytes, blocks, reasons);
    CheckItem("properties", EdidProperties(edid.properties), reasons);
    CheckList("descriptors", edid.descriptors, reasons);
    CheckList("standard", edid.standardResolutions, reasons);
    CheckExtensions(edid.extensionBlocks, reasons);
    return reasons;
}

namespace {

void PrintLine(const std::string& line, const Console& console) {
    console.out << OneLine(String(std::string_view(line))) << "\n";
}

int RunCheck(const Arguments& arguments, const Console& console) {
    int status = Success;
    for (const std::string& file : arguments.Words()) {
        try {
            std::string line;
            for (const std::string& reason : CheckEdid(ReadImportedFile(file, console))) {
                line += (line.empty() ? "" : "; ") + reason;
            }
            PrintLine(line.empty() ? "ok " + file : "problem " + file + ": " + line, console);
            if (!line.empty()) status = std::max<int>(status, Negative);
        } catch (const Failure& failure) {
            std::string reason = failure.what();
            if (reason.starts_with(file + ": ")) reason.erase(0, file.size() + 2);
            PrintLine("unreadable " + file + ": " + reason, console);
            status = Refused;
        }
    }
    return status;
}

}  // namespace

extern const Command CheckCommand;
const Command CheckCommand{
    "check",  {{"FILE...", FileWord.help}}, {}, "tells what is wrong with EDIDs, a line each", "one.bin two.bin",
    &RunCheck};

}  // namespace VNT::Cli
