#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "model/core/bytes.h"
#include "model/core/item_status.h"
#include "model/core/text_string.h"

namespace VNT {

class FieldSink;

// The root of every family of items. `AnyX` is the family's abstract base.
template <class AnyX>
class TAny {
public:
    TAny() = default;
    TAny(const TAny&) = default;
    TAny(TAny&&) noexcept = default;
    // The data is copied by the typed assignment of the derived class; these do nothing.
    virtual TAny& operator=(const TAny&) = default;
    virtual TAny& operator=(TAny&&) noexcept = default;
    virtual ~TAny() = default;

    // True if both are the same class with equal fields. A holder compares as the item that it holds; an empty holder
    // equals nothing, not even another empty holder. The operators == and != of a family call this.
    virtual bool Equals(const AnyX& other) const = 0;
    // The item itself; on a holder the held item, or the holder itself when empty.
    virtual const AnyX& Get() const = 0;
    // Typed item: takes all fields of `other` and returns true, or false with nothing changed if that is another class.
    // Holder: always true; what it held is replaced by a clone.
    virtual bool Assign(const AnyX& other) = 0;
    // A new copy; null from an empty holder.
    virtual std::unique_ptr<AnyX> Clone() const = 0;

    friend bool operator==(const AnyX& a, const AnyX& b) { return a.Equals(b); }
};

// An item of a list that another item holds, for those who know neither's class.
struct ItemPart {
    const char* list = "";  // the list's name in the layout of its holder
    int index = 0;
    String text;
    bool isValid = false;
    std::vector<ItemPart> parts;  // of the lists that it holds itself
};

// The operations of the families whose items are read from a frame of their own length.
template <class AnyX>
class TAnyFramed : public TAny<AnyX> {
public:
    virtual bool Read(ByteRange range) = 0;
    virtual bool Write(ByteRange range) const = 0;
    virtual int GetType() const = 0;
    // One line of text: with `format` in place of the item's two main templates, or with the item's own format. Empty
    // for an item that is not IsValidAll and for an empty holder.
    virtual void GetText(String& out, const String& format) const = 0;
    virtual void GetText(String& out) const = 0;
    // Every field lies in what a sound EDID holds / in what the bytes can carry. False on an empty holder.
    virtual bool IsValid() const = 0;
    virtual bool IsValidAll() const = 0;
    // The same of an item that is as its bytes gave it: one that takes any bytes needs no test then.
    virtual bool IsValidAllAsRead() const { return IsValidAll(); }
    // The items of its own lists, list after list.
    virtual std::vector<ItemPart> GetParts() const { return {}; }
    // Tells the fields to a sink, which may change them (field_sink.h), as they are in `available` bytes. Nothing of an
    // empty holder.
    virtual void TellFields(int available, FieldSink& sink) = 0;
    // Makes the item what an edit of its fields that changes none makes of it.
    virtual void Renew() = 0;
};

// The operations of the families whose items have a size of their own, which a list of them adds up.
template <class AnyX>
class TAnySized : public TAny<AnyX> {
public:
    virtual bool Read(ByteRange range) = 0;
    virtual bool Write(ByteRange range) const = 0;
    virtual int GetType() const = 0;
    // The bytes that the item writes; 0 for an empty holder.
    virtual int GetSize() const = 0;
    virtual void GetText(String& out, const String& format) const = 0;
    virtual void GetText(String& out) const = 0;
    // With `size` bytes for the item: it fits / every field lies in what a sound EDID holds / in what the bytes can
    // carry. False on an empty holder. `size` counts as 0 to the most that the family's frame can say.
    virtual bool IsAvailable(int size) const = 0;
    virtual bool IsValid(int size) const = 0;
    virtual bool IsValidAll(int size) const = 0;
    // The same, given all the room there can be.
    bool IsValid() const { return IsValid(AnyX::MaxSize); }
    bool IsValidAll() const { return IsValidAll(AnyX::MaxSize); }
    // Of each field, whether `size` reaches its last byte: it can be edited then.
    virtual ItemStatus GetAvailable(int size) const = 0;
    // As TAnyFramed.
    virtual std::vector<ItemPart> GetParts() const { return {}; }
    virtual void TellFields(int available, FieldSink& sink) = 0;
    virtual void Renew() = 0;
};

// An item of a fixed type value, whose operations are made where X is (layout_made.h). X supplies `EqualFields(const
// X&)`; its fields are copied by its assignment.
template <class X, class TypeEnum, TypeEnum value, class AnyX, class AnyY>
class TCommonType : public AnyY {
public:
    using ItemType = X;
    static constexpr TypeEnum TypeValue = value;

    int GetType() const override { return static_cast<int>(value); }
    const AnyX& Get() const override { return static_cast<const AnyX&>(static_cast<const AnyY&>(*this)); }
    bool Equals(const AnyX& other) const override;
    bool Assign(const AnyX& other) override;
    std::unique_ptr<AnyX> Clone() const override;
};

// Two items of one class compare by their fields, whichever families the class belongs to.
template <class X>
requires requires(const X& x) { x.EqualFields(x); }
bool operator==(const X& a, const X& b) { return a.EqualFields(b); }

// A holder: owns at most one item of the family, is one itself, and forwards to what it holds.
template <class AnyX, class AnyY>
class TContainer : public AnyY {
public:
    TContainer() = default;
    explicit TContainer(std::unique_ptr<AnyX> item) : item_(std::move(item)) {}
    TContainer(const TContainer& other) : AnyY(other), item_(other.Clone()) {}
    TContainer(TContainer&& other) noexcept : item_(std::move(other.item_)) {}
    TContainer& operator=(const TContainer& other) {
        if (this != &other) item_ = other.Clone();
        return *this;
    }
    TContainer& operator=(TContainer&& other) noexcept {
        item_ = std::move(other.item_);
        return *this;
    }

    bool IsEmpty() const { return item_ == nullptr; }
    bool Equals(const AnyX& other) const override { return item_ != nullptr && item_->Equals(other); }
    const AnyX& Get() const override { return item_ != nullptr ? item_->Get() : static_cast<const AnyX&>(*this); }
    bool Assign(const AnyX& other) override {
        item_ = other.Clone();
        return true;
    }
    std::unique_ptr<AnyX> Clone() const override { return item_ != nullptr ? item_->Clone() : nullptr; }

protected:
    std::unique_ptr<AnyX> item_;
};

// What the holders of all families share. `Kinds` is the family's table (kinds.h): it makes the item for the bytes.
template <class AnyX, class Kinds>
class TReadingContainer : public TContainer<AnyX, AnyX> {
public:
    using KindsType = Kinds;
    using TContainer<AnyX, AnyX>::TContainer;

    // False, with the holder as it was, only if the range is too short for the family's frame.
    bool Read(ByteRange range) override {
        std::unique_ptr<AnyX> item = Kinds::Read(range);
        if (item == nullptr) return false;
        this->item_ = std::move(item);
        return true;
    }
    bool Write(ByteRange range) const override { return this->item_ != nullptr && this->item_->Write(range); }
    int GetType() const override { return this->item_ != nullptr ? this->item_->GetType() : AnyX::NoType; }
    void GetText(String& out, const String& format) const override {
        out = String();
        if (this->item_ != nullptr) this->item_->GetText(out, format);
    }
    void GetText(String& out) const override {
        out = String();
        if (this->item_ != nullptr) this->item_->GetText(out);
    }
    std::vector<ItemPart> GetParts() const override {
        return this->item_ != nullptr ? this->item_->GetParts() : std::vector<ItemPart>();
    }
    void TellFields(int available, FieldSink& sink) override {
        if (this->item_ != nullptr) this->item_->TellFields(available, sink);
    }
    void Renew() override {
        if (this->item_ != nullptr) this->item_->Renew();
    }
};

// The holder of a framed family.
template <class AnyX, class Kinds>
class TFramedContainer : public TReadingContainer<AnyX, Kinds> {
public:
    using TReadingContainer<AnyX, Kinds>::TReadingContainer;

    bool IsValid() const override { return this->item_ != nullptr && this->item_->IsValid(); }
    bool IsValidAll() const override { return this->item_ != nullptr && this->item_->IsValidAll(); }
    bool IsValidAllAsRead() const override { return this->item_ != nullptr && this->item_->IsValidAllAsRead(); }
};

// The holder of a family whose items have a size of their own.
template <class AnyX, class Kinds>
class TSizedContainer : public TReadingContainer<AnyX, Kinds> {
public:
    using TReadingContainer<AnyX, Kinds>::TReadingContainer;
    using AnyX::IsValid;
    using AnyX::IsValidAll;

    int GetSize() const override { return this->item_ != nullptr ? this->item_->GetSize() : 0; }
    bool IsAvailable(int size) const override { return this->item_ != nullptr && this->item_->IsAvailable(size); }
    ItemStatus GetAvailable(int size) const override {
        return this->item_ != nullptr ? this->item_->GetAvailable(size) : ItemStatus();
    }
    bool IsValid(int size) const override { return this->item_ != nullptr && this->item_->IsValid(size); }
    bool IsValidAll(int size) const override { return this->item_ != nullptr && this->item_->IsValidAll(size); }
};

}  // namespace VNT
