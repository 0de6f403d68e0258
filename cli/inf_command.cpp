#include <algorithm>
#include <chrono>
#include <iostream>

#include "cli/edid_files.h"
#include "cli/words.h"

namespace VNT::Cli {

namespace {

constexpr int VendorLetters = 3;
constexpr int ProductDigits = 4;
constexpr const char* Lines = "\r\n";

// Of ASCII only: an INF is read by Windows in any language.
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
bool IsLetter(char c) { return c >= 'A' && c <= 'Z'; }
bool IsHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); }

// "ABC1234", in capitals as Windows makes it of the EDID; empty of what is no such ID.
std::string PlainId(std::string id) {
    for (char& c : id) c = Upper(c);
    if (id.size() != VendorLetters + ProductDigits) return "";
    for (int i = 0; i < VendorLetters + ProductDigits; ++i) {
        const char c = id[static_cast<std::size_t>(i)];
        if (i < VendorLetters ? !IsLetter(c) : !IsHexDigit(c)) return "";
    }
    return id;
}

std::string OwnId(const EdidIdentity& identity) {
    return PlainId(identity.vendorId.ToUtf8() +
                   NumberText(static_cast<std::uint32_t>(identity.productId), 16, ProductDigits, true).ToUtf8());
}

std::string ChooseId(const Arguments& arguments, const Edid& edid, const std::string& file) {
    if (const std::string* given = arguments.Value("--id")) {
        const std::string id = PlainId(*given);
        if (id.empty()) throw Failure(*given, "three letters and four hexadecimal digits are needed");
        return id;
    }
    const std::string id = OwnId(edid.GetIdentity());
    if (id.empty()) throw Failure(file, "its vendor ID is no three letters; give --id");
    return id;
}

// The name that Windows is to show. A control character would end its line.
std::string ChooseName(const Arguments& arguments, const Edid& edid, const std::string& id) {
    const std::string* given = arguments.Value("--name");
    const String text = given != nullptr ? String(std::string_view(*given)) : edid.GetIdentity().name;
    String name;
    for (const char32_t c : text.View()) {
        const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
        if (isControl && given != nullptr) throw Failure("--name", "has a control character");
        if (!isControl) name.Append(c);
    }
    return name.IsEmpty() ? id : name.ToUtf8();
}

// A text between quotes in [Strings]: a quote and a percent sign stand twice there.
std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c;
        if (c == '"' || c == '%') quoted += c;
    }
    return quoted + "\"";
}

// The day that the file was made, as DriverVer has it.
std::string Today() {
    const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    const auto two = [](unsigned number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return two(static_cast<unsigned>(day.month())) + "/" + two(static_cast<unsigned>(day.day())) + "/" +
           std::to_string(static_cast<int>(day.year()));
}

// One block as the data of a registry entry: 0x01 says that it is binary.
std::string BlockLine(int index, const Bytes& block) {
    constexpr int hex = 16, digits = 2;
    std::string line = "HKR,EDID_OVERRIDE,\"" + std::to_string(index) + "\",0x01";
    for (int i = 0; i < block.Size(); ++i) line += ",0x" + NumberText(block.At(i), hex, digits, true).ToUtf8();
    return line;
}

// The sections that Microsoft documents for overriding the EDID of a monitor by its INF.
std::string MakeInf(const Bytes& bytes, const std::string& id, const std::string& name) {
    std::vector<std::string> lines{
        "; EDID override of the monitor " + id + ".",
        "; It has to be signed before Windows installs it: make " + id + ".cat of it, and sign that.",
        "[Version]",
        "Signature=\"$WINDOWS NT$\"",
        "Class=Monitor",
        "ClassGuid={4d36e96e-e325-11ce-bfc1-08002be10318}",
        "Provider=%Provider%",
        "CatalogFile=" + id + ".cat",
        "DriverVer=" + Today() + ",1.0.0.0",
        "PnpLockdown=1",
        "",
        "[Manufacturer]",
        "%Provider%=Monitor,NTx86,NTamd64,NTarm64",
    };
    for (const char* system : {"NTx86", "NTamd64", "NTarm64"}) {
        lines.insert(lines.end(), {"", std::string("[Monitor.") + system + "]", "%Name%=Override,MONITOR\\" + id});
    }
    lines.insert(lines.end(),
                 {"", "[Override]", "", "[Override.HW]", "AddReg=Override.AddReg", "", "[Override.AddReg]"});
    for (int i = 0; i < bytes.Size() / Edid::BlockSize; ++i)
        lines.push_back(BlockLine(i, bytes.Slice(i * Edid::BlockSize, Edid::BlockSize)));
    lines.insert(lines.end(), {"", "[Strings]", "Provider=\"Vantelle\"", "Name=" + Quoted(name)});
    std::string text;
    for (const std::string& line : lines) text += line + Lines;
    return text;
}

// Windows reads an INF as UTF-16 where a mark of the byte order says so, else in the machine's code page.
Bytes EncodeInf(const std::string& text) {
    Bytes bytes;
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return Bytes(std::vector<std::uint8_t>(text.begin(), text.end()));
    const auto append = [&bytes](char32_t unit) {
        constexpr char32_t byte = 256;
        bytes.Append(Bytes{static_cast<std::uint8_t>(unit % byte), static_cast<std::uint8_t>(unit / byte)});
    };
    append(0xFEFF);
    const String characters{std::string_view(text)};
    for (const char32_t c : characters.View()) {
        constexpr char32_t wide = 0x10000, half = 0x400;
        if (c < wide) {
            append(c);
        } else {
            append(0xD800 + (c - wide) / half);
            append(0xDC00 + (c - wide) % half);
        }
    }
    return bytes;
}

int RunInf(const Arguments& arguments, const Console& console) {
    const std::string &file = arguments.Words()[0], &out = arguments.Words()[1];
    const ImportedFile imported = ReadImportedFile(file, console);
    if (imported.HasLost()) throw Failure(file, LossTexts(imported)[0]);
    const Bytes bytes = imported.bytes.Slice(0, imported.bytes.Size() - static_cast<int>(imported.behind));
    const std::string id = ChooseId(arguments, imported.edid, file);
    const std::string name = ChooseName(arguments, imported.edid, id);
    WriteOut(EncodeInf(MakeInf(bytes, id, name)), out, console);
    console.err << "vantelle-cli: " << out << ": has to be signed before Windows installs it\n";
    return Success;
}

}  // namespace

extern const Command InfCommand;
const Command InfCommand{"inf",
                         {FileWord, OutWord},
                         {{"--id", "ABC1234", "the monitor that it is for; else the EDID's own ID"},
                          {"--name", "TEXT", "what Windows is to call it; else the EDID's own name"}},
                         "writes a monitor INF that overrides an EDID on Windows",
                         "monitor.bin monitor.inf --id ABC1234",
                         &RunInf};

}  // namespace VNT::Cli
