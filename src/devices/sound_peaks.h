// The form of a sound file: how loud it is along its length.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace devices {

// The highest loudness in each of so many equal parts of a sound file, 0 to 1; empty where nobody can read
// it.
[[nodiscard]] std::vector<float> peaksOf(const std::string& path, std::size_t parts);

}  // namespace devices
