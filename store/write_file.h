#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "model/core/bytes.h"

namespace VNT {

enum class Links { Follow, Replace };

// Writes the bytes to a file. What was there stays as it was until all is on the disk: a new file of a random name,
// created beside it, takes its place, its mode and its owner. Where that can't be, the file itself is written. What is
// no regular file (device, pipe, terminal) is written to. False, with nothing left beside it, if it fails. `mode`, if
// any, is that of the new file from the first moment on.
bool WriteFile(const std::filesystem::path& path, ByteRange bytes, Links links = Links::Follow,
               std::optional<std::filesystem::perms> mode = {});

// True for the name of such a new file: one is left over only where the program was ended while it wrote.
bool IsFreshName(std::string_view name);

}  // namespace VNT
