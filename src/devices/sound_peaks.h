// How loud a sound file is along its length, for drawing its waveform.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace devices {

// The highest amplitude in each of `parts` equal parts of a sound file, 0 to 1; empty if it cannot be read.
[[nodiscard]] std::vector<float> peaksOf(const std::string& path, std::size_t parts);

}  // namespace devices
