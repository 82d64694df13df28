// libmpv, loaded when the first piece of music or take is opened: it brings in some 190 more libraries, which
// would make the program start later and larger.
#pragma once

#include <mpv/client.h>

#include <optional>

namespace devices {

struct MpvFunctions {
  decltype(&mpv_create) create = nullptr;
  decltype(&mpv_initialize) initialize = nullptr;
  decltype(&mpv_terminate_destroy) destroy = nullptr;
  decltype(&mpv_set_option_string) setOption = nullptr;
  decltype(&mpv_get_property) getProperty = nullptr;
  decltype(&mpv_set_property) setProperty = nullptr;
  decltype(&mpv_get_property_string) getText = nullptr;
  decltype(&mpv_set_property_string) setText = nullptr;
  decltype(&mpv_free) free = nullptr;
  decltype(&mpv_command) command = nullptr;
  decltype(&mpv_wait_event) waitEvent = nullptr;
};

class MpvLibrary {
 public:
  // Loads the library at the first call; null where it cannot be loaded. Valid as long as this object.
  [[nodiscard]] const MpvFunctions* functions();

 private:
  std::optional<MpvFunctions> functions_;
};

}  // namespace devices
