#pragma once

#include "store/linux/lasting.h"

// Overrides of the machine's displays: in the running kernel (debugfs), where one lasts until the next start, and for
// every start.
namespace VNT::Linux {

enum class Duration { Both, Now, Lasting };

struct Options {
    Duration duration = Duration::Both;  // of a new override; taking off takes off all
    bool dryRun = false;                 // tell what would be done, change nothing
};

class Overrides {
public:
    Overrides(Host& host, const Report& report, const Options& options)
        : host_(host), report_(report), options_(options) {}

    // Each tells what it did, and is false with the reason told if that is not what was asked for.
    bool Set(const Connector& connector, const Bytes& bytes);
    bool TakeOff(const Connector& connector);
    // The override of ours that the display has, the one in use before the one that is to last; empty if it has none.
    Bytes Get(const Connector& connector) const;
    // There is something to take off, be it an override that a start has ended, or what a crash left.
    bool IsOnRecord(const Connector& connector) const;
    // What the display itself reports, as far as it is known while an override of ours is in its place.
    Bytes GetReported(const Connector& connector) const;

private:
    struct Plan;

    // False, with the file told, where it can't be known what is ours.
    bool MayBeChanged(const Connector& connector) const;
    bool IsNameShared(const Connector& connector) const;
    Plan MakePlan(const DisplayRecord& from, const DisplayRecord& to, Changes& changes);
    bool MayCarryOut(const Changes& changes, const std::vector<std::string>& attributes,
                     const std::shared_ptr<void>& lock) const;
    bool SetAttribute(const std::string& path, const Bytes& bytes, const std::string& what) const;
    bool SetLive(const std::string& value) const;
    void PlanLive(const Plan& plan, Changes& changes) const;
    void Probe(const Connector& connector) const;
    void TellNamesakes(const Connector& connector, const Plan& plan, const DisplayRecord& record) const;
    bool TellState(const Connector& connector, const Bytes& bytes, bool isLasting) const;
    bool Fail(const Connector& connector, const std::string& why) const;

    Host& host_;
    const Report& report_;
    Options options_;
};

}  // namespace VNT::Linux
