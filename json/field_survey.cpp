#include "json/field_survey.h"

#include <algorithm>

namespace VNT::Json {

namespace {

// Beyond this a number that is written by a rule of its own is not tried: all of these stand in a byte or a size.
constexpr std::int64_t MostTried = 300;
constexpr std::int64_t EveryBit = 0xFFFFFFFF;
constexpr std::int64_t Hundredth = Decimal::Scale / 100;

// Puts one number into one field, bytes and texts by their length.
class Hand : public FieldSink {
public:
    Hand(std::string_view name, std::int64_t number) : name_(name), number_(number) {}

    void Kept(const char* name, const BitPlace&, const NumberRef& value) override { Put(name, value); }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits&) override {
        Put(name, value);
    }
    void Value(const char* name, const NumberRef& value, NumberNames, bool, bool) override { Put(name, value); }
    void Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>&) override { Put(name, value); }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>&) override { Put(name, value); }
    void Value(const char* name, Bytes& value, bool, bool) override { Put(name, value); }

private:
    void Put(const char* name, const NumberRef& value) const {
        if (name == name_) value.Put(number_);
    }
    void Put(const char* name, Bytes& value) const {
        if (name == name_) value = Bytes(static_cast<int>(number_), 0);
    }

    std::string_view name_;
    std::int64_t number_;
};

// Whether the bytes can carry what a field holds now.
class Judge : public FieldSink {
public:
    explicit Judge(const std::string& name) : name_(name) {}
    void Check(const char* name, bool proper, bool all) override {
        if (name != name_) return;
        isProper = proper;
        isAll = all;
    }
    bool isProper = false;
    bool isAll = false;

private:
    const std::string& name_;
};

bool IsUndefined(const NumberRef& value) {
    if (value.Form() == NumberForm::Decimal) return value.Get() == Decimal::Undefined().Millionths();
    return value.Get() == Undefined;
}

struct Trial {
    std::string_view name;
    std::int64_t number;
};

// What one state tells: it adds to what is known, and lists what to try next.
class Surveyor : public FieldSink {
public:
    Surveyor(std::vector<SurveyedField>& fields, const PartCheck& onPart) : fields_(fields), onPart_(onPart) {}

    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override {
        SurveyedField& field = MeetNumber(name, value, {});
        const NumberRange range{0, value.Form() == NumberForm::Count ? place.Most() : value.Held(place.Most())};
        Include(field.proper, range);
        Include(field.all, range);
        TryNumbers(name, value, range);
    }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) override {
        SurveyedField& field = MeetNumber(name, value, limits.GetNames());
        std::visit([&](const auto& l) { Include(field.proper, RangeOf(l)); }, limits.GetProper());
        const AnyLimits all = limits.GetAll();
        std::visit(
            [&](const auto& l) {
                Include(field.all, RangeOf(l));
                AddBeside(field, l);
                TryNumbers(name, value, RangeOf(l));
            },
            all);
    }
    void Value(const char* name, const NumberRef& value, NumberNames names, bool, bool) override {
        SurveyedField& field = MeetNumber(name, value, names);
        field.mayBeUndefined = field.mayBeUndefined || IsUndefined(value);  // where that is so, it is from the start
        TryNumbers(name, value, {0, MostTried});
        ruled.push_back({name, value.Form()});
    }
    void Data(const char* name, int, Bytes&, const TLimitPair<CountLimits>& limits) override {
        MeetBytes(name, SurveyedField::Kind::Bytes, limits.all);
    }
    void Rest(const char* name, Bytes&, const TLimitPair<CountLimits>& limits) override {
        MeetBytes(name, SurveyedField::Kind::Bytes, limits.all);
    }
    void Rest(const char* name, String&, const TLimitPair<CountLimits>& limits) override {
        MeetBytes(name, SurveyedField::Kind::Text, limits.all);
    }
    void Value(const char* name, String&, bool, bool) override { Meet(name, SurveyedField::Kind::Text); }
    void Value(const char* name, Bytes&, bool, bool) override {
        Meet(name, SurveyedField::Kind::Bytes);
        for (const int length : {0, 1}) trials.push_back({name, length});
    }
    void Part(const char* name, int, const PartRef& part, bool, bool) override { MeetPart(name, part); }
    void List(const char* name, const PartRef& list, bool, bool) override { MeetPart(name, list); }
    void Optional(const char* name, const PartRef& item, bool, bool) override { MeetPart(name, item); }

    struct Ruled {
        std::string name;
        NumberForm form;
    };

    std::vector<Trial> trials;
    std::vector<Ruled> ruled;               // whose limits are rules of their own
    std::vector<std::string_view> applies;  // the names of the fields that there are

private:
    // Behind the one that stands before it now, so that the order is the layout's.
    SurveyedField& Meet(const char* name, SurveyedField::Kind kind) {
        applies.emplace_back(name);
        const auto found =
            std::find_if(fields_.begin(), fields_.end(), [name](const SurveyedField& f) { return f.name == name; });
        if (found != fields_.end()) {
            next_ = static_cast<std::size_t>(found - fields_.begin()) + 1;
            return *found;
        }
        SurveyedField field;
        field.name = name;
        field.kind = kind;
        const auto place = fields_.insert(fields_.begin() + static_cast<std::ptrdiff_t>(next_), std::move(field));
        ++next_;
        return *place;
    }
    SurveyedField& MeetNumber(const char* name, const NumberRef& value, NumberNames names) {
        SurveyedField& field = Meet(name, SurveyedField::Kind::Number);
        field.form = value.Form();
        const bool isFlags = field.form == NumberForm::Flags;
        for (const NumberName& text : isFlags ? value.Flags() : names) field.texts.emplace(text.number, text.text);
        if (isFlags) field.bits = value.Held(EveryBit);
        return field;
    }
    void MeetBytes(const char* name, SurveyedField::Kind kind, const CountLimits& limits) {
        Include(Meet(name, kind).length, {limits.min, limits.max});
        if (kind != SurveyedField::Kind::Bytes) return;
        for (const int length : {0, 1, limits.max}) {
            if (limits.Contains(length)) trials.push_back({name, length});
        }
    }
    void MeetPart(const char* name, const PartRef& part) {
        Meet(name, SurveyedField::Kind::Part);
        onPart_(name, part);
    }
    static void Include(NumberRange& range, const NumberRange& more) {
        if (more.IsEmpty()) return;
        range.Include(more.min);
        range.Include(more.max);
    }
    template <class V>
    static NumberRange RangeOf(const TValueLimits<V>& limits) {
        return {Detail::Raw(limits.min), Detail::Raw(limits.max)};
    }
    static NumberRange RangeOf(const EnumLimits& limits) { return {0, limits.count - 1}; }
    static NumberRange RangeOf(const CountLimits& limits) { return {limits.min, limits.max}; }
    template <class V>
    static void AddBeside(SurveyedField& field, const TValueLimits<V>& limits) {
        for (const V& value : limits.extra) AddExtra(field, Detail::Raw(value));
        field.step = Detail::Raw(limits.stepOffset) == 0 ? Detail::Raw(limits.step) : 0;
    }
    static void AddBeside(SurveyedField& field, const EnumLimits& limits) {
        for (const int value : limits.extra) AddExtra(field, value);
    }
    static void AddBeside(SurveyedField&, const CountLimits&) {}
    static void AddExtra(SurveyedField& field, std::int64_t number) {
        const bool isUndefined =
            number == (field.form == NumberForm::Decimal ? Decimal::Undefined().Millionths() : Undefined);
        if (isUndefined) {
            field.mayBeUndefined = true;
        } else {
            field.extra.insert(number);
        }
    }
    // Which other fields there are hangs on kinds, versions, sizes and flags: on small numbers, single bits and ends.
    void TryNumbers(const char* name, const NumberRef& value, const NumberRange& range) {
        constexpr std::int64_t mostSmall = 16;
        const std::int64_t unit = value.Form() == NumberForm::Decimal ? Decimal::Scale : 1;
        const auto attempt = [&](std::int64_t number) {
            if (number >= range.min && number <= range.max && value.Held(number) == number)
                trials.push_back({name, number});
        };
        for (std::int64_t number = 0; number <= mostSmall; ++number) attempt(number * unit);
        for (std::int64_t bit = 2 * mostSmall; bit < range.max && unit == 1; bit *= 2) attempt(bit);
        if (range.min < 0) attempt(range.min);
        if (range.min > mostSmall * unit) attempt(range.min);
        if (range.max > mostSmall * unit) attempt(range.max);
    }

    std::vector<SurveyedField>& fields_;
    const PartCheck& onPart_;
    std::size_t next_ = 0;
};

class Survey {
public:
    Survey(const std::function<ItemRef()>& make, const PartCheck& onPart) : make_(make), onPart_(onPart) {}

    std::vector<SurveyedField> Run() {
        constexpr std::size_t deepest = 4;
        std::vector<State> states{{}};
        for (const Bytes& bytes : FillsOf(make_().GetBytes())) states.push_back({bytes, {}});
        for (std::size_t i = 0; i < states.size(); ++i) {
            const State state = states[i];
            std::vector<Trial> trials;
            if (!Look(state, trials) || state.trials.size() >= deepest) continue;
            for (Trial& trial : trials) {
                State next = state;
                next.trials.push_back(std::move(trial));
                states.push_back(std::move(next));
            }
        }
        return std::move(fields_);
    }

private:
    struct State {
        Bytes bytes;  // that the item is read from; none for a new one
        std::vector<Trial> trials;
    };

    // The bytes of a new item with all behind its first few filled: what no single field leads to.
    static std::vector<Bytes> FillsOf(const Bytes& bytes) {
        constexpr int mostHead = 8;
        std::vector<Bytes> fills;
        for (int head = 0; head <= std::min(mostHead, bytes.Size() - 1); ++head) {
            for (const std::uint8_t fill : {0x00, 0x55, 0xFF}) {
                Bytes filled = bytes.Slice(0, head);
                filled.Append(Bytes(bytes.Size() - head, fill));
                fills.push_back(std::move(filled));
            }
        }
        return fills;
    }
    std::optional<ItemRef> MakeState(const State& state) const {
        ItemRef item = make_();
        if (!state.bytes.IsEmpty()) {
            const int kind = item.HasKinds() ? item.GetKind() : 0;
            if (!item.Read(state.bytes) || (item.HasKinds() && item.GetKind() != kind)) return std::nullopt;
        }
        for (const Trial& trial : state.trials) {
            Hand hand(trial.name, trial.number);
            item.Tell(hand);
        }
        return item;
    }
    // Whether a field applies that did in no state before.
    bool Look(const State& state, std::vector<Trial>& trials) {
        const std::optional<ItemRef> item = MakeState(state);
        if (!item) return false;
        Surveyor surveyor(fields_, onPart_);
        item->Tell(surveyor);
        trials = std::move(surveyor.trials);
        const std::size_t known = met_.size();
        met_.insert(surveyor.applies.begin(), surveyor.applies.end());
        if (met_.size() == known) return false;
        for (const Surveyor::Ruled& ruled : surveyor.ruled) FindRange(*item, ruled);
        return true;
    }
    // The range of a field that tells none: what its test lets pass.
    void FindRange(const ItemRef& item, const Surveyor::Ruled& ruled) {
        SurveyedField& field = *std::find_if(fields_.begin(), fields_.end(),
                                             [&ruled](const SurveyedField& f) { return f.name == ruled.name; });
        if (ruled.form == NumberForm::Truth || ruled.form == NumberForm::Flags || !field.all.IsEmpty()) return;
        const bool isDecimal = ruled.form == NumberForm::Decimal;
        const std::int64_t unit = isDecimal ? Hundredth : 1;
        for (std::int64_t i = 0; i <= MostTried + (isDecimal ? MostTried : 0); ++i) {
            Judge judge(ruled.name);
            Ask(item, ruled.name, i * unit, judge);
            if (judge.isProper) field.proper.Include(i * unit);
            if (judge.isAll) field.all.Include(i * unit);
        }
    }
    static void Ask(const ItemRef& item, const std::string& name, std::int64_t number, Judge& judge) {
        Hand hand(name, number);
        item.Tell(hand);
        item.Tell(judge);
    }

    const std::function<ItemRef()>& make_;
    const PartCheck& onPart_;
    std::vector<SurveyedField> fields_;
    std::set<std::string_view> met_;
};

}  // namespace

void NumberRange::Include(std::int64_t number) {
    if (IsEmpty()) {
        min = max = number;
    } else {
        min = std::min(min, number);
        max = std::max(max, number);
    }
}

std::vector<SurveyedField> SurveyFields(const std::function<ItemRef()>& make, const PartCheck& onPart) {
    return Survey(make, onPart).Run();
}

}  // namespace VNT::Json
