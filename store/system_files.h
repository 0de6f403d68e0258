#pragma once

#include <filesystem>
#include <memory>

#include "model/core/bytes.h"

// What writing a file asks of the system, a call or two each; `write_file` decides.
namespace VNT::SystemFiles {

enum class Kind { None, File, Folder, Other };  // Other: a device, a pipe, a terminal

struct Place {
    std::filesystem::path path;
    Kind kind = Kind::None;
};

// Where `path` leads when all links are followed, the last of them too if it points to nothing yet. False for a circle.
bool Follow(const std::filesystem::path& path, Place& out);
// What stands at `path` itself; a link is None, for it is replaced as a whole.
Place At(const std::filesystem::path& path);

// A file open for writing, from its start; closed when it goes.
class OpenFile {
public:
    virtual ~OpenFile() = default;

    virtual bool Write(ByteRange bytes) = 0;
    // Ends the file where the writing stands, and has it on the disk.
    virtual bool Finish() = 0;
    // Gives it mode and owner of the file at `path`.
    virtual bool TakeAfter(const std::filesystem::path& path) = 0;
};

enum class Rights { Usual, Own };  // those that a new file has, or the owner's alone

// A new file; null, with `taken` telling whether that is the reason, if anything has that name.
std::unique_ptr<OpenFile> Create(const std::filesystem::path& path, Rights rights, bool& taken);
// One that is there; a link is none.
std::unique_ptr<OpenFile> Open(const std::filesystem::path& path);
// Puts `fresh` in the place of what stands at `path`, in one step, and has that on the disk.
bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& path);

// Waits until nobody else holds the folder, and holds it as long as the result lives. Null if it can't be held.
std::shared_ptr<const void> LockFolder(const std::filesystem::path& folder);

// Where the program was started without one of its three streams, a file of its own would get the number, and with it
// what is meant for the stream.
void HoldStandardStreams();

// What ends a line of a text file.
const char* LineEnd();

}  // namespace VNT::SystemFiles
