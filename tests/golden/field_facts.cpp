// What a new item of each kind holds, and between which limits: sound ones, then those that its bytes can carry.
#include <sstream>

#include "model/core/field_sink.h"
#include "model/core/layout.h"
#include "model/core/text.h"
#include "model/cta/audio_formats.h"
#include "model/cta/data_block.h"
#include "model/cta/hdr_dynamic_metadata.h"
#include "model/cta/other_data_block.h"
#include "model/displayid/data_block.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/section.h"
#include "model/edid/descriptor.h"
#include "model/edid/edid.h"
#include "model/edid/extension_block.h"
#include "model/edid/range_limits_timing.h"
#include "tests/golden/facts.h"

namespace VNT::Testing {
namespace {

// Undefined, of whichever type it is.
template <class T>
std::string ValueText(T value) {
    if constexpr (std::is_same_v<T, Decimal>) {
        return value.IsUndefined() ? "undefined" : DecimalToText(value, 6).ToUtf8();
    } else {
        return value == Undefined ? "undefined" : std::to_string(value);
    }
}

std::string LimitsText(const CountLimits& limits) {
    return std::to_string(limits.min) + " to " + std::to_string(limits.max) + " long";
}
std::string LimitsText(const EnumLimits& limits) {
    std::string text = "one of " + std::to_string(limits.count);
    for (const int value : limits.extra) text += " or " + ValueText(value);
    return text;
}
template <class T>
std::string LimitsText(const TValueLimits<T>& limits) {
    std::string text = ValueText(limits.min) + " to " + ValueText(limits.max);
    if (limits.step != T{}) text += " by " + ValueText(limits.step);
    if (limits.stepOffset != T{}) text += " from " + ValueText(limits.stepOffset);
    for (const T& value : limits.extra) text += " or " + ValueText(value);
    return text;
}
std::string LimitsText(const AnyLimits& limits) {
    return std::visit([](const auto& some) { return LimitsText(some); }, limits);
}
template <class Limits>
std::string PairText(const Limits& proper, const Limits& all) {
    const std::string sound = LimitsText(proper), carried = LimitsText(all);
    return sound == carried ? sound : sound + "; " + carried;
}

std::string StateText(bool proper, bool all) { return proper ? "sound" : all ? "carried" : "neither"; }

std::string NumberText(const NumberRef& number) {
    if (number.Form() == NumberForm::Decimal) return ValueText(Decimal::FromMillionths(number.Get()));
    return number.Get() == Undefined ? "undefined" : std::to_string(number.Get());
}

class FieldPrinter : public FieldSink {
public:
    FieldPrinter(std::ostream& out, std::string indent) : out_(out), indent_(std::move(indent)) {}

    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override {
        Line(name, NumberText(value) + ", any of " + std::to_string(place.Count()) + " bits");
    }
    void Number(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits& limits) override {
        Line(name, NumberText(value) + ", " + std::to_string(place.Count()) +
                       " bits: " + PairText(limits.GetProper(), limits.GetAll()));
    }
    void Data(const char* name, int count, Bytes& value, const TLimitPair<CountLimits>& limits) override {
        Line(name,
             std::to_string(count) + " bytes " + HexText(value).ToUtf8() + ": " + PairText(limits.proper, limits.all));
    }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) override {
        Line(name, "the rest " + HexText(value).ToUtf8() + ": " + PairText(limits.proper, limits.all));
    }
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) override {
        Line(name, "the rest \"" + value.ToUtf8() + "\": " + PairText(limits.proper, limits.all));
    }
    void Part(const char* name, int count, const PartRef& part, bool proper, bool all) override {
        Line(name, std::to_string(count) + " bytes, " + StateText(proper, all));
        PrintPart(part);
    }
    void List(const char* name, const PartRef& list, bool proper, bool all) override {
        Line(name, "a list, " + StateText(proper, all));
        PrintPart(list);
    }
    void Optional(const char* name, const PartRef& item, bool proper, bool all) override {
        Line(name, "an item, " + StateText(proper, all));
        PrintPart(item);
    }
    void Check(const char* name, bool proper, bool all) override { Line(name, StateText(proper, all)); }
    void Value(const char* name, const NumberRef& value, NumberNames, bool proper, bool all) override {
        Line(name, NumberText(value) + ", " + StateText(proper, all));
    }
    void Value(const char* name, String& value, bool proper, bool all) override {
        Line(name, "\"" + value.ToUtf8() + "\", " + StateText(proper, all));
    }
    void Value(const char* name, Bytes& value, bool proper, bool all) override {
        Line(name, HexText(value).ToUtf8() + ", " + StateText(proper, all));
    }

private:
    void Line(const char* name, const std::string& text) { out_ << indent_ << name << ": " << text << "\n"; }
    // The items of a family have their own lines.
    void PrintPart(const PartRef& part) {
        FieldPrinter within(out_, indent_ + "  ");
        if (!part.IsList()) {
            if (!part.Item().HasKinds()) part.Item().Tell(within);
            return;
        }
        if (part.GetCount() == 0) part.Add([](const ItemRef&) {});
        if (part.GetCount() > 0 && !part.At(0).HasKinds()) part.At(0).Tell(within);
    }

    std::ostream& out_;
    std::string indent_;
};

void PrintItem(std::ostream& out, const std::string& title, auto& item, int available) {
    Bytes bytes(available, 0);
    const bool isWritten = item.Write(bytes);
    out << title << ", new " << (isWritten ? HexText(bytes.Slice(0, bytes.LastIndexNot(0))).ToUtf8() : "not written")
        << "\n";
    FieldPrinter printer(out, "  ");
    item.TellFields(available, printer);
}

template <class Any>
constexpr int MostBytes() {
    if constexpr (requires { Any::FrameSize; }) {
        return Any::FrameSize;
    } else {
        return Any::MaxSize;
    }
}

// The kinds, and the class that takes what is of none.
template <class Other, class Rows>
void PrintFamily(std::ostream& out, const std::string& name, const Rows& kinds) {
    for (const auto& kind : kinds) {
        const auto item = kind.make();
        PrintItem(out, name + ": " + kind.title, *item, MostBytes<std::remove_cvref_t<decltype(*item)>>());
    }
    Other other;
    PrintItem(out, name + " of no kind", other, MostBytes<Other>());
}

}  // namespace

std::string PrintFields() {
    std::ostringstream out;
    PrintFamily<EdidOtherDescriptor>(out, "Descriptor", EdidDescriptorKinds::All());
    PrintFamily<EdidRangeLimitsOtherTiming>(out, "Range limits timing", EdidRangeLimitsTimingKinds::All());
    PrintFamily<EdidOtherExtensionBlock>(out, "Extension block", EdidExtensionBlockKinds::All());
    PrintFamily<CtaOtherDataBlock>(out, "CTA data block", CtaDataBlockKinds::All());
    PrintFamily<CtaOtherAudioFormat>(out, "CTA audio format", CtaAudioFormatKinds::All());
    PrintFamily<CtaOtherHdrDynamicMetadata>(out, "CTA HDR dynamic metadata", CtaHdrDynamicMetadataKinds::All());
    PrintFamily<DisplayIdOtherDataBlock>(out, "DisplayID data block", DisplayIdDataBlockKinds::All());
    FieldPrinter printer(out, "  ");
    out << "Base block, new " << HexText(Edid(EdidFields()).GetBytes()).ToUtf8() << "\n";
    EdidProperties properties;
    TLayout<EdidProperties>::Tell(properties, EdidProperties::FrameSize, printer);
    return out.str();
}

}  // namespace VNT::Testing
