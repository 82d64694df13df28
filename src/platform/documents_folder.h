// Where the rider keeps documents of his own.
#pragma once

#include <string>

namespace platform {

// What the desktop's user-dirs say, else ~/Documents.
[[nodiscard]] std::string documentsFolder();

}  // namespace platform
