#include "tests/editor/form_case.h"

#include "editor/all_forms.h"
#include "tests/support/items.h"

namespace VNT::Testing {

namespace {

// What an item was written as, read, and written again.
struct ReadBack {
    Bytes bytes;
    bool isRead = false;
    Bytes again;
    std::string text = {};
    std::string textAgain = {};
};

// Once, not for each class.
void Expect(const ReadBack& readBack) {
    EXPECT_FALSE(readBack.bytes.IsEmpty());
    EXPECT_TRUE(readBack.isRead);
    EXPECT_EQ(readBack.again, readBack.bytes);
    EXPECT_EQ(readBack.textAgain, readBack.text);
}

template <class X>
class TFormCase : public FormCase {
public:
    explicit TFormCase(Forms::TFormSample<X> given) : sample(std::move(given)), item(sample.item) {
        name = sample.name;
    }

    int Edit() override { return sample.edit(nullptr, item, sample.bytes); }
    void Renew() override { item = sample.item; }
    bool IsNew() const override { return item == sample.item; }
    bool IsSound() const override { return item.IsValid(); }
    bool IsEmpty() const override {
        if constexpr (IsHolder) return item.IsEmpty();
        return false;
    }
    void ExpectToComeBack() const override {
        if constexpr (requires { item.GetSize(); }) {
            if (item.GetSize() == 0) return;  // a part that takes no bytes
        }
        ReadBack readBack;
        readBack.bytes = Written(item);
        const X again = Read(readBack);
        readBack.again = Written(again);
        if constexpr (requires(String & text) { item.GetText(text); }) {
            readBack.text = TextOf(item);
            readBack.textAgain = TextOf(again);
        }
        Expect(readBack);
    }

private:
    static constexpr bool IsHolder = requires(const X& x) { X(x.Clone()); };

    Bytes Written(const X& written) const {
        if constexpr (requires { written.GetSize(); }) {
            return BytesOf(written, written.GetSize());
        } else {
            return BytesOf(written, sample.bytes);
        }
    }
    // By the class itself, which its family's holder may not read.
    X Read(ReadBack& readBack) const {
        if constexpr (IsHolder) {
            auto fresh = item.Clone();
            readBack.isRead = fresh->Read(readBack.bytes);
            return X(std::move(fresh));
        } else {
            X fresh;
            if constexpr (requires { fresh.Read(readBack.bytes, readBack.bytes.Size()); }) {
                readBack.isRead = fresh.Read(readBack.bytes, readBack.bytes.Size());
            } else {
                readBack.isRead = fresh.Read(readBack.bytes);
            }
            return fresh;
        }
    }

    Forms::TFormSample<X> sample;
    X item;
};

// A generic visitor that adds each sample as a case.
auto AddTo(FormCases& cases) {
    return [&cases]<class X>(Forms::TFormSample<X> sample) {
        cases.push_back(std::make_shared<TFormCase<X>>(std::move(sample)));
    };
}

}  // namespace

FormCases AllForms() {
    FormCases cases;
    Forms::ForEachForm(AddTo(cases));
    return cases;
}

std::set<std::string> KindsWithoutForm() {
    std::set<std::string> found;
    const auto add = [&found](const std::string& family, const auto& kinds, const auto&... forms) {
        for (const auto& kind : kinds) {
            if (((Forms::FindForm(forms, kind.type) == nullptr) && ...)) found.insert(family + ": " + kind.title);
        }
    };
    add("descriptor", EdidDescriptorKinds::All(), EdidDescriptorForms());
    add("range limits timing", EdidRangeLimitsTimingKinds::All(), EdidRangeLimitsTimingForms());
    add("extension block", EdidExtensionBlockKinds::All(), EdidExtensionBlockForms());
    add("CTA data block", CtaDataBlockKinds::All(), CtaDataBlockForms());
    add("audio format", CtaAudioFormatKinds::All(), CtaAudioFormatForms());
    add("HDR dynamic metadata", CtaHdrDynamicMetadataKinds::All(), CtaHdrDynamicMetadataForms());
    add("DisplayID data block", DisplayIdDataBlockKinds::All(), DisplayId1DataBlockForms(), DisplayId2DataBlockForms());
    return found;
}

FormCases AllChoosers() {
    FormCases cases;
    Forms::ForEachChooser(AddTo(cases));
    return cases;
}

}  // namespace VNT::Testing
