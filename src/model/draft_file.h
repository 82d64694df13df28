// A list that is not saved yet, kept in a file. The file is a session file; behind its records stands, as
// text, what such a file does not hold: every row as it is, the titles, and when it was kept.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/grid.h"

namespace model {

struct Draft {
  platform::LocalTime kept{};  // when the list last changed
  std::string sessionTitle;    // seanceTitre
  std::array<std::string, 5>
      captions;  // of the list, its title and its two buttons, as the editor orders them
  std::vector<platform::Grid::Cells> rows;

  bool operator==(const Draft&) const = default;
};

// Whole or not at all; a platform::Fault where the disk or the list's length forbids it. `grid` holds the
// draft's rows.
void writeDraft(platform::FileSystem& files, const std::string& path, const Draft& draft,
                const platform::Grid& grid);
// None where the file is not a whole draft; a platform::FileFault where it cannot be read.
[[nodiscard]] std::optional<Draft> readDraft(platform::FileSystem& files, const std::string& path);

}  // namespace model
