#pragma once

#include <string>
#include <vector>

#include "model/core/layout.h"

namespace VNT::Cli {

// What the limits of an item, and of the items that it holds, refuse: "NAME is VALUE, RANGE expected", or "out of
// limits" where that hangs on a rule; a text for each such field. Of an item in a list the name is a path:
// "LIST/2/NAME".
std::vector<std::string> FieldFaults(const FieldSource& item);

// Gathers the texts.
class FaultSink : public FieldSink {
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
    void Value(const char* name, const NumberRef& value, NumberNames names, bool proper, bool all) override;
    void Value(const char* name, String& value, bool proper, bool all) override;
    void Value(const char* name, Bytes& value, bool proper, bool all) override;

    std::vector<std::string> faults;

private:
    void Refuse(const char* name, const std::string& value, const std::string& expected);
    void RefuseByRule(const char* name, const std::string& value);
    void RefuseIf(bool refused, const char* name);
    void AddFaultsOf(const ItemRef& item, const std::string& path);
};

// The same of the item in a holder, which tells its fields itself.
template <class Item>
std::vector<std::string> FieldFaultsOf(const Item& item, int available) {
    FaultSink sink;
    Item copy = item;
    copy.TellFields(available, sink);
    return std::move(sink.faults);
}

}  // namespace VNT::Cli
