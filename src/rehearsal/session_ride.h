// A session file as a ride, without an editor.
#pragma once

#include <optional>
#include <string>

#include "model/ride_order.h"
#include "platform/file_system.h"

namespace rehearsal {

// What the editor would hand over if the rider opened this file alone. The file stays as it is, also one of
// the old records, which the editor would convert. Throws platform::Fault where it cannot be read.
[[nodiscard]] model::RideOrder orderOf(platform::FileSystem& files, const std::string& session);

// The rider's settings, where he has any. `folder` is the program's.
[[nodiscard]] std::optional<model::Settings> settingsIn(platform::FileSystem& files,
                                                        const std::string& folder);

}  // namespace rehearsal
