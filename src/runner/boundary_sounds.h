// The names of the sounds that speak the captions of the ride's screen; empty for a caption without a prompt.
#pragma once

#include <string>

namespace runner {

[[nodiscard]] std::string sequenceSound(const std::string& caption);
[[nodiscard]] std::string cadenceSound(const std::string& caption);
[[nodiscard]] std::string gearSound(const std::string& caption);
[[nodiscard]] std::string chainringSound(const std::string& caption);
// The number of a row, or of a pass.
[[nodiscard]] std::string sequenceNumberSound(int row);
[[nodiscard]] std::string passSound(int pass);

}  // namespace runner
