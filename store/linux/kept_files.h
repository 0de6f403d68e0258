#pragma once

#include <functional>

#include "store/linux/changes.h"

// Before a file of the system's is changed, a copy of it is kept, and what is put in its place is remembered: so a
// reset can tell whether something else changed it since, and else puts back every byte.
namespace VNT::Linux {

class KeptFiles {
public:
    explicit KeptFiles(const Host& host) : host_(host) {}

    struct Base {
        Content content;         // the file with nothing of ours in it
        bool isUnclear = false;  // changed since, in a way that doesn't let ours be taken out
    };
    // Takes what is ours out of a text that something else changed since; nothing if it can't.
    using Strip = std::function<std::optional<std::string>(const std::string&)>;
    Base FindBase(const std::string& path, const Strip& strip) const;
    // The same of a file that is all ours: known by its first line, or by its bytes alone.
    Base FindBaseOfOwn(const std::string& path) const;

    // Has the file hold `content`, the copy kept of `base` or dropped where nothing of ours is left.
    void Plan(Changes& changes, const std::string& path, const Content& base, const Content& content,
              bool executable = false) const;
    // What something else made of the file since is its own.
    void Abandon(Changes& changes, const std::string& path) const { Forget(changes, path); }
    // The same of a file that a program changes: `isLast` if it takes out what is ours, and what the program leaves
    // otherwise than it was is put right.
    void PlanAround(Changes& changes, const std::string& path, bool isLast, const Strip& strip) const;

private:
    bool IsKept(const std::string& path) const;
    Content Original(const std::string& path) const;
    bool IsAsWritten(const std::string& path, const Content& current) const;
    void Keep(Changes& changes, const std::string& path, const Content& base) const;
    void Forget(Changes& changes, const std::string& path) const;

    const Host& host_;
};

inline constexpr char OwnFileMark[] = "# Written by vantelle-cli; `vantelle-cli reset --all` takes it away.";

}  // namespace VNT::Linux
