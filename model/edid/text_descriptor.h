#pragma once

#include <algorithm>

#include "model/core/code_page.h"
#include "model/edid/descriptor.h"

namespace VNT {

struct EdidTextDescriptorFields {
    String text;  // up to 13 characters of code page 437
    bool operator==(const EdidTextDescriptorFields&) const = default;
};

struct EdidTextDescriptorAllFields : EdidTextDescriptorFields, EdidDescriptorFrame {
    Bytes padding = Bytes(12, 0x20);  // what follows the line feed
    bool operator==(const EdidTextDescriptorAllFields&) const = default;
};

// The three descriptors that hold a text: its bytes, a line feed and padding, 13 bytes together (E-EDID 1.4, 3.10.3). A
// text of 13 characters has neither line feed nor padding.
template <class X, EdidDescriptorTypeId::Enum id>
class TEdidTextDescriptor : public TEdidDescriptor<X, id, EdidTextDescriptorFields, EdidTextDescriptorAllFields> {
public:
    static constexpr int MaxLength = 13;
    static constexpr std::uint8_t LineFeed = 0x0A;
    static constexpr std::uint8_t PaddingByte = 0x20;

    void Normalize() { this->padding = Bytes(GetPaddingLength(), PaddingByte); }
    void NormalizeRead() {}
    bool HasContent() const { return !this->text.IsEmpty(); }
    void FillTexts(TextTable& table) const { table.Set(U"{text}", this->text); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, id, item);
        io.ThroughData(
            MaxLength, [&] { return item.GetPayload(); }, [&](auto payload) { item.SetPayload(payload); });
        const bool fits = item.text.Length() <= MaxLength;
        const bool isPlain = io.Tested([&] {
            return fits && !item.text.IsEmpty() && item.AllCharacters([](char32_t c) { return c >= 32 && c <= 126; });
        });
        io.Value("text", item.text, isPlain, io.Tested([&] {
            return fits && (isPlain || item.AllCharacters([](char32_t c) {
                       const int byte = CodePage437Byte(c);
                       return byte >= 0 && byte != LineFeed;
                   }));
        }));
        const bool isWhole = item.padding.Size() == item.GetPaddingLength();
        io.Value("padding", item.padding, isWhole && item.padding.IsAll(PaddingByte), isWhole);
    }

private:
    int GetPaddingLength() const { return std::max(0, MaxLength - 1 - this->text.Length()); }
    template <class Test>
    bool AllCharacters(const Test& test) const {
        const auto view = this->text.View();
        return std::all_of(view.begin(), view.end(), test);
    }
    Bytes GetPayload() const {
        Bytes payload = CodePage437FromText(this->text);
        payload.Append(Bytes{LineFeed});
        payload.Append(this->padding);
        return payload;
    }
    void SetPayload(ByteRange payload) {
        this->text = TextFromCodePage437(payload.TakeUntil(LineFeed));
        payload.SkipBytes(1);
        this->padding.Assign(payload.TakeRest());
    }
};

class EdidNameDescriptor : public TEdidTextDescriptor<EdidNameDescriptor, EdidDescriptorTypeId::Name> {
public:
    EdidNameDescriptor() = default;
    explicit EdidNameDescriptor(const EdidTextDescriptorFields& fields) { SetFields(fields); }
    static constexpr TextFormat Format{U"{type}: {description}", U"{type} is empty", U"{text}", U"Name"};
};

class EdidSerialNumberDescriptor
    : public TEdidTextDescriptor<EdidSerialNumberDescriptor, EdidDescriptorTypeId::SerialNumber> {
public:
    EdidSerialNumberDescriptor() = default;
    explicit EdidSerialNumberDescriptor(const EdidTextDescriptorFields& fields) { SetFields(fields); }
    static constexpr TextFormat Format{U"{type}: {description}", U"{type} is empty", U"{text}", U"Serial number"};
};

class EdidTextDescriptor : public TEdidTextDescriptor<EdidTextDescriptor, EdidDescriptorTypeId::Text> {
public:
    EdidTextDescriptor() = default;
    explicit EdidTextDescriptor(const EdidTextDescriptorFields& fields) { SetFields(fields); }
    static constexpr TextFormat Format{U"{type}: {description}", U"{type} is empty", U"{text}", U"Text"};
};

}  // namespace VNT
