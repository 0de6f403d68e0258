#pragma once

#include "model/core/layout.h"

namespace VNT {

// Measures a layout: the bytes that its fields take as they are, and which of them `available` bytes reach.
class LayoutRuler : public TLayoutObserver<LayoutRuler> {
public:
    // `reach` gets told of each field whether the bytes available reach its last one.
    explicit LayoutRuler(int available, ItemStatus* reach = nullptr) : TLayoutObserver(available), reach_(reach) {}

    int Bytes() const { return (position_ + BitsPerByte - 1) / BitsPerByte; }

    void Constant(const BitPlace& place, std::uint32_t) { position_ = place.End(position_); }
    template <class Get, class Set>
    void Through(const BitPlace& place, const Get&, const Set&) {
        position_ = place.End(position_);
    }
    template <class Get, class Set>
    void ThroughData(int count, const Get&, const Set&) {
        Pass(count);
    }
    template <class T>
    void Kept(const char* name, const BitPlace& place, const T&) {
        position_ = place.End(position_);
        Report(name);
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const TLimitPair<L>&) {
        Kept(name, place, value);
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const Coding&, const TLimitPair<L>&) {
        Kept(name, place, value);
    }
    void Data(const char* name, int count, const VNT::Bytes&, const TLimitPair<CountLimits>&) {
        Pass(count);
        Report(name);
    }
    void Rest(const char* name, const VNT::Bytes& value, const TLimitPair<CountLimits>&) {
        PassRest(name, value.Size());
    }
    void Rest(const char* name, const String& value, const TLimitPair<CountLimits>&) { PassRest(name, value.Length()); }
    template <class Item>
    void Part(const char* name, int count, const Item&, bool, bool) {
        Pass(count);
        Report(name);
    }
    // What a list holds can be taken out of it whatever the room.
    template <class Items, class L>
    void List(const char* name, const Items& list, const TLimitPair<L>&) {
        Report(name);
        Pass(list.GetSize());
    }
    template <class Item>
    bool Optional(const char* name, const Item& item, bool isThere, int) {
        if (isThere) List(name, item, TLimitPair<CountLimits>(CountLimits()));
        return isThere;
    }
    // What is no field to the layout, such as text, has its name in the test behind its bytes.
    void Check(const char* name, bool, bool) { Report(name); }

private:
    static constexpr int BitsPerByte = 8;

    void Pass(int count) { position_ = (Bytes() + count) * BitsPerByte; }
    // It can be edited only where there is room for one byte at least.
    void PassRest(const char* name, int count) {
        const int start = position_;
        Pass(1);
        Report(name);
        position_ = start;
        Pass(count);
    }
    void Report(const char* name) {
        if (reach_ == nullptr || reach_->IsPresent(name)) return;
        const bool isReached = Bytes() <= Available();
        reach_->Report(name, isReached, isReached);
    }

    ItemStatus* reach_;
    int position_ = 0;  // bits
};

}  // namespace VNT
