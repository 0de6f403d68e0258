#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "model/core/bytes.h"

namespace VNT::Linux {

// A call of a program: its name, as found by its path below the root, and its arguments.
using Command = std::vector<std::string>;

// What is told to the user, a line at a time.
struct Report {
    std::function<void(const std::string&)> did;    // what was done, or would be
    std::function<void(const std::string&)> wrong;  // what went wrong, what is left, what the user has to do
};

// The machine, as this room sees it: files below one root, and programs. Paths are relative to the root ("etc/fstab");
// a link below the root leads to where it would lead if the root were "/", so that none leads out. Each operation is
// one that may fail, for tests to let it fail.
class Host {
public:
    virtual ~Host() = default;

    // The path without links, or nothing if there is no such file or folder.
    virtual std::optional<std::string> Resolve(const std::string& path) const = 0;
    virtual bool IsFile(const std::string& path) const = 0;
    virtual bool IsFolder(const std::string& path) const = 0;
    virtual std::vector<std::string> Names(const std::string& folder) const = 0;  // sorted; nothing of no folder
    // The bytes of a regular file; nothing of one that is missing, can't be read or has more than `most` bytes.
    virtual std::optional<Bytes> Read(const std::string& path, int most = MostFileBytes) const = 0;

    // Puts these bytes in the place of a file, as a whole, with the folders above it. A link's target is replaced.
    virtual std::error_code Write(const std::string& path, const Bytes& bytes, bool executable = false) = 0;
    virtual std::error_code Remove(const std::string& path) = 0;        // a file
    virtual std::error_code RemoveFolder(const std::string& path) = 0;  // one with nothing in it
    // Gives the kernel these bytes in one call, which is how its own files take them.
    virtual std::error_code WriteAttribute(const std::string& path, const Bytes& bytes) = 0;
    virtual bool MayWrite(const std::string& path) const = 0;  // the file, or the nearest folder above one to be made
    virtual bool MayRun() const = 0;                           // programs that work on the system as a whole
    // Runs a program to its end; its exit status, or an error. `output`, if any, gets what it prints.
    virtual std::error_code Run(const Command& command, int& status, std::string* output = nullptr) = 0;
    // Waits until no other call of this program is at work, for as long as the result lives; null if that fails.
    virtual std::shared_ptr<void> Lock(const std::string& path) = 0;

    static constexpr int MostFileBytes = 1024 * 1024;
};

Bytes ToBytes(const std::string& text);
std::string ToText(const Bytes& bytes);
std::string ReadText(const Host& host, const std::string& path);                // nothing of one that can't be read
std::string ReadLine(const Host& host, const std::string& path);                // its first line
std::vector<std::string> ReadLines(const Host& host, const std::string& path);  // those that are not empty
// The path of a program in one of the folders for them, or nothing.
std::optional<std::string> FindProgram(const Host& host, const std::string& name);
// The call as one would type it.
std::string CommandText(const Command& command);

}  // namespace VNT::Linux
