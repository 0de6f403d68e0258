#pragma once

#include "store/linux/changes.h"
#include "store/linux/connectors.h"
#include "store/linux/edid_parameter.h"

// What is remembered of each display that has an override of ours: a folder for each, as a reset needs it, even from a
// rescue shell.
namespace VNT::Linux {

struct DisplayRecord {
    std::string device;  // the connector's
    std::string name;
    Content reported = {};  // the EDID before the first override
    Content now = {};       // what was given to the running kernel
    Content before = {};    // the override that it had then from something else
    Content lasting = {};   // what stands in the firmware file
    std::string file = {};  // that file's name below the firmware folder
    // What stood there before the write that is at work, or was ended in the midst of it.
    Content earlierNow = {};
    Content earlierLasting = {};
    std::vector<std::string> earlierFiles = {};

    std::string Identity() const { return device + "/" + name; }
    FirmwareEntry Entry() const { return {name, file}; }
    bool IsEmpty() const { return !now && !lasting && !earlierNow && earlierFiles.empty(); }
    bool IsOurs(const Content& shown) const {
        return shown && (shown == now || shown == lasting || shown == earlierNow || shown == earlierLasting);
    }
    // Itself, and one for each firmware file besides that may still be there.
    std::vector<DisplayRecord> WithEarlier() const;
};

// In the order of their folders' names; those that can't be read as records are left out.
std::vector<DisplayRecord> ReadRecords(const Host& host);
// The one of a connector, with nothing in it if there is none.
DisplayRecord ReadRecord(const Host& host, const Connector& connector);
// Whether there is one, though it may have nothing that can be read.
bool HasRecord(const Host& host, const Connector& connector);
// The path of a file of its record that says nothing: one that can't be read, or that names no file of ours. Empty if
// there is none, as if there is no record.
std::string FindUnreadable(const Host& host, const Connector& connector);
// Has the folder hold the record before anything is changed; and, once all is done that was planned before, forget what
// was earlier, or all of it.
void PlanRecord(Changes& changes, const DisplayRecord& record);
void PlanSettled(Changes& changes, const DisplayRecord& record);
void PlanNoRecord(Changes& changes, const DisplayRecord& record);

}  // namespace VNT::Linux
