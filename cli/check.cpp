#include "cli/check.h"

#include <ostream>

#include "cli/command.h"
#include "cli/edid_files.h"
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

void CheckLength(const Bytes& bytes, int blocks, std::vector<std::string>& reasons) {
    const int whole = std::min(blocks, bytes.Size() / Edid::BlockSize);
    const int behind = bytes.Size() - whole * Edid::BlockSize;
    const int missing = blocks - whole;
    if (behind > 0)
        reasons.push_back(std::to_string(behind) + (behind == 1 ? " byte" : " bytes") + " behind the last block");
    if (missing > 0) reasons.push_back(std::to_string(missing) + (missing == 1 ? " block" : " blocks") + " missing");
}

void CheckRoundTrip(const Edid& edid, const Bytes& bytes, std::vector<std::string>& reasons) {
    const Bytes written = edid.GetBytes();
    const int count = std::min(bytes.Size(), edid.GetSize());
    for (int i = 0; i < count; ++i) {
        if (i < written.Size() && written.At(i) == bytes.At(i)) continue;
        reasons.push_back("round trip differs at byte " + std::to_string(i));
        return;
    }
}

void CheckItem(const std::string& path, bool isValid, const std::vector<ItemPart>& parts,
               std::vector<std::string>& reasons) {
    if (!isValid) reasons.push_back(path + " out of limits");
    for (const ItemPart& part : parts) {
        CheckItem(path + "/" + part.list + "/" + std::to_string(part.index), part.isValid, part.parts, reasons);
    }
}

template <class List>
void CheckList(const std::string& path, const List& list, std::vector<std::string>& reasons) {
    for (int i = 0; i < list.GetCount(); ++i) {
        std::vector<ItemPart> parts;
        if constexpr (requires { list.At(i).GetParts(); }) parts = list.At(i).GetParts();
        CheckItem(path + "/" + std::to_string(i), list.At(i).IsValid(), parts, reasons);
    }
}

}  // namespace

std::vector<std::string> CheckEdid(const Edid& edid, const Bytes& bytes) {
    std::vector<std::string> reasons;
    const int blocks = 1 + std::max(edid.extensionBlockCount, edid.extensionOverrideCount);
    CheckChecksums(bytes, blocks, reasons);
    CheckLength(bytes, blocks, reasons);
    CheckRoundTrip(edid, bytes, reasons);
    if (!EdidProperties(edid.properties).IsValid()) reasons.push_back("properties out of limits");
    CheckList("descriptors", edid.descriptors, reasons);
    CheckList("standard", edid.standardResolutions, reasons);
    CheckList("extensions", edid.extensionBlocks, reasons);
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
            const Bytes bytes = ReadFileBytes(file, console);
            Edid edid;
            if (!ReadAnyFormat(bytes, edid)) throw Failure("is no EDID in BIN, DAT or TXT format");
            // A text file has no bytes of its own behind the EDID: what it holds is what was read.
            const bool isBinary = Edid().Read(bytes);
            std::string line;
            for (const std::string& reason : CheckEdid(edid, isBinary ? bytes : edid.GetBytes())) {
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
