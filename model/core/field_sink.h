#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

#include "model/core/any.h"
#include "model/core/bit_place.h"
#include "model/core/item_status.h"

// What an item's layout tells of its fields, without their types: those who look at fields are sinks, which are
// compiled once and not once for each kind.
namespace VNT {

class FieldSink;

enum class NumberForm { Count, Truth, Enumeration, Decimal, Flags };

// How a number's type is read and written: a truth as 0 or 1, a decimal in millionths, flags as their bits.
struct NumberType {
    NumberForm form;
    std::int64_t (*get)(const void* value);
    void (*put)(void* value, std::int64_t number);
    NumberNames flags;  // the bits that have a text
};

class NumberRef {
public:
    NumberRef(void* value, const NumberType& type) : value_(value), type_(&type) {}
    NumberForm Form() const { return type_->form; }
    NumberNames Flags() const { return type_->flags; }
    std::int64_t Get() const { return type_->get(value_); }
    void Put(std::int64_t number) const { type_->put(value_, number); }
    // What is left of `number` in the field; its value is as before.
    std::int64_t Held(std::int64_t number) const;

private:
    void* value_;
    const NumberType* type_;
};

using AnyLimits = std::variant<ValueLimits, LongLimits, DecimalLimits, CountLimits, EnumLimits>;

// The two limits of a number, of whichever type they are. It refers to the pair that it is made from.
class NumberLimits {
public:
    NumberLimits(const TLimitPair<ValueLimits>& pair) : pair_(&pair) {}
    NumberLimits(const TLimitPair<LongLimits>& pair) : pair_(&pair) {}
    NumberLimits(const TLimitPair<DecimalLimits>& pair) : pair_(&pair) {}
    NumberLimits(const TLimitPair<EnumLimits>& pair) : pair_(&pair) {}
    bool IsProper(std::int64_t number) const;
    bool IsAll(std::int64_t number) const;
    AnyLimits GetProper() const;
    AnyLimits GetAll() const;
    NumberNames GetNames() const;

private:
    std::variant<const TLimitPair<ValueLimits>*, const TLimitPair<LongLimits>*, const TLimitPair<DecimalLimits>*,
                 const TLimitPair<EnumLimits>*>
        pair_;
};

// What any item can, whatever its class; `holder` is one of a family, which makes its item by its kind's title.
struct ItemType {
    void (*tell)(void* item, FieldSink& sink);
    void (*renew)(void* item);
    Bytes (*getBytes)(const void* item);  // empty of one that can't be written
    bool (*read)(void* item, const Bytes& bytes);
    int (*getKind)(const void* holder);  // its number among the kinds, -1 for one of no kind; null without a family
    std::vector<const char*> (*getKinds)();
    void (*makeKind)(void* holder, int kind);
    std::shared_ptr<void> (*makeNew)();
};

class ItemRef {
public:
    ItemRef(void* item, const ItemType& type) : item_(item), type_(&type) {}
    void Tell(FieldSink& sink) const { type_->tell(item_, sink); }
    void Renew() const { type_->renew(item_); }
    Bytes GetBytes() const { return type_->getBytes(item_); }
    bool Read(const Bytes& bytes) const { return type_->read(item_, bytes); }
    bool HasKinds() const { return type_->getKind != nullptr; }
    int GetKind() const { return type_->getKind(item_); }
    std::vector<const char*> GetKinds() const { return type_->getKinds(); }
    void MakeKind(int kind) const { type_->makeKind(item_, kind); }
    // A new item of its class, which lives as long as the reference to it.
    ItemRef MakeNew() const {
        std::shared_ptr<void> item = type_->makeNew();
        ItemRef made(item.get(), *type_);
        made.owned_ = std::move(item);
        return made;
    }

private:
    void* item_;
    std::shared_ptr<void> owned_;
    const ItemType* type_;
};

// An item or a list among the fields of another.
struct PartType {
    int (*getSize)(const void* part);  // bytes; null of what has no size of its own
    // The items of the part, if it is a list, behind `rows`; else those of the lists that it holds.
    void (*addRows)(const void* part, const char* name, std::vector<ItemPart>& rows);
    const ItemType* item;               // of an item; null for a list
    int (*getCount)(const void* list);  // null for an item
    ItemRef (*at)(const void* list, int index);
    // Adds a new item at the end, as `fill` leaves it; false if it can't be written back.
    bool (*add)(void* list, const std::function<void(const ItemRef&)>& fill);
    void (*clear)(void* list);
};

class PartRef {
public:
    PartRef(void* part, const PartType& type) : part_(part), type_(&type) {}
    int GetSize() const { return type_->getSize(part_); }
    void AddRows(const char* name, std::vector<ItemPart>& rows) const { type_->addRows(part_, name, rows); }
    bool IsList() const { return type_->getCount != nullptr; }
    ItemRef Item() const { return ItemRef(part_, *type_->item); }
    int GetCount() const { return type_->getCount(part_); }
    ItemRef At(int index) const { return type_->at(part_, index); }
    bool Add(const std::function<void(const ItemRef&)>& fill) const { return type_->add(part_, fill); }
    void Clear() const { type_->clear(part_); }

private:
    void* part_;
    const PartType* type_;
};

// The lines of a layout as layout.h has them, field by field, in their order. `proper` and `all` are what the field's
// limits say of it.
class FieldSink {
public:
    virtual ~FieldSink() = default;
    // What is no field.
    virtual void Pass(const BitPlace&) {}
    virtual void PassBytes(int) {}

    virtual void Kept(const char*, const BitPlace&, const NumberRef&) {}
    virtual void Number(const char*, const BitPlace&, const NumberRef&, const NumberLimits&) {}
    virtual void Derived(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits& limits) {
        Number(name, place, value, limits);
    }
    virtual void Data(const char*, int, Bytes&, const TLimitPair<CountLimits>&) {}
    virtual void Rest(const char*, Bytes&, const TLimitPair<CountLimits>&) {}
    virtual void Rest(const char*, String&, const TLimitPair<CountLimits>&) {}
    virtual void Part(const char*, int, const PartRef&, bool, bool) {}
    virtual void List(const char*, const PartRef&, bool, bool) {}
    virtual void Optional(const char*, const PartRef&, bool, bool) {}  // one that is there
    virtual void Check(const char*, bool, bool) {}
    // A field whose bytes are no line of their own. Most sinks know no more of it than that its test has its name.
    virtual void Value(const char* name, const NumberRef&, NumberNames, bool proper, bool all) {
        Check(name, proper, all);
    }
    virtual void Value(const char* name, String&, bool proper, bool all) { Check(name, proper, all); }
    virtual void Value(const char* name, Bytes&, bool proper, bool all) { Check(name, proper, all); }
};

// Whether a number that is kept as it is fits its place.
bool FitsPlace(const BitPlace& place, const NumberRef& value);

// The state of each field.
class StatusSink : public FieldSink {
public:
    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override;
    void Number(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits& limits) override;
    void Data(const char* name, int count, Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) override;
    void Part(const char* name, int count, const PartRef& part, bool proper, bool all) override;
    void List(const char* name, const PartRef& list, bool proper, bool all) override;
    void Optional(const char* name, const PartRef& item, bool proper, bool all) override;
    void Check(const char* name, bool proper, bool all) override;

    ItemStatus status;
};

struct FieldLimits {
    const char* name;
    AnyLimits proper;
    AnyLimits all;
};

// The limits of each field as they are now, for those who need the numbers themselves.
class LimitsSink : public FieldSink {
public:
    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override;
    void Number(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits& limits) override;
    void Data(const char* name, int count, Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) override;

    std::vector<FieldLimits> limits;
};

// Measures a layout: the bytes that its fields take as they are, and which of them `available` bytes reach.
class RulerSink : public FieldSink {
public:
    explicit RulerSink(int available) : available_(available) {}
    int Bytes() const;

    void Pass(const BitPlace& place) override;
    void PassBytes(int count) override;
    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override;
    void Number(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits& limits) override;
    void Data(const char* name, int count, VNT::Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, VNT::Bytes& value, const TLimitPair<CountLimits>& limits) override;
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) override;
    void Part(const char* name, int count, const PartRef& part, bool proper, bool all) override;
    void List(const char* name, const PartRef& list, bool proper, bool all) override;
    void Optional(const char* name, const PartRef& item, bool proper, bool all) override;
    void Check(const char* name, bool proper, bool all) override;

    ItemStatus reach;  // of each field, whether the bytes available reach its last one

private:
    void PassRest(const char* name, int count);
    void Report(const char* name);

    int available_;
    int position_ = 0;  // bits
};

// The items of the lists among an item's parts.
class PartsSink : public FieldSink {
public:
    void Part(const char* name, int count, const PartRef& part, bool proper, bool all) override;
    void List(const char* name, const PartRef& list, bool proper, bool all) override;
    void Optional(const char* name, const PartRef& item, bool proper, bool all) override;

    std::vector<ItemPart> parts;
};

}  // namespace VNT
