// Copying a file of any length, a block at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/file_system.h"

namespace platform {

// Told after each block how many of how many bytes are copied; false gives the copy up.
using CopyProgress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

// Replaces what stands at `to`, and only by the whole copy: one that fails or is given up leaves nothing
// behind. False when it was given up.
bool copyFile(FileSystem& files, const std::string& from, const std::string& to,
              const CopyProgress& progress = {});

}  // namespace platform
