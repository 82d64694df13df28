// Copying a file of any length, a block at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/file_system.h"

namespace platform {

// Called after each block with the bytes copied so far and the total; returns false to cancel the copy.
using CopyProgress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

// Replaces the file at `to` whole or not at all (WholeFile). False: it was cancelled.
bool copyFile(FileSystem& files, const std::string& from, const std::string& to,
              const CopyProgress& progress = {});

}  // namespace platform
