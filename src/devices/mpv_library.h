// libmpv, loaded when the first piece of music or take is opened: it brings in some 190 more libraries, which
// would make the program start later and larger.
#pragma once

#include <mpv/client.h>

#include <condition_variable>
#include <future>
#include <memory>
#include <mutex>
#include <optional>

namespace devices {

// Of what libmpv offers once it runs, only what does not wait for its core, which may wait for a sound
// server.
struct MpvFunctions {
  decltype(&mpv_create) create = nullptr;
  decltype(&mpv_initialize) initialize = nullptr;
  decltype(&mpv_terminate_destroy) destroy = nullptr;
  decltype(&mpv_set_option_string) setOption = nullptr;
  decltype(&mpv_get_property_async) askProperty = nullptr;
  decltype(&mpv_set_property_async) setProperty = nullptr;
  decltype(&mpv_command_async) command = nullptr;
  decltype(&mpv_wait_event) waitEvent = nullptr;
};

// Ends players on threads of their own, since their end waits for the core.
class MpvEnds {
 public:
  MpvEnds() = default;
  // Waits up to 1 s for them; then the program ends without them.
  ~MpvEnds();
  MpvEnds(const MpvEnds&) = delete;
  MpvEnds& operator=(const MpvEnds&) = delete;

  void end(const MpvFunctions& mpv, mpv_handle* handle);

 private:
  struct Pending {
    std::mutex mutex;
    std::condition_variable fewer;
    int count = 0;
  };
  std::shared_ptr<Pending> pending_ = std::make_shared<Pending>();
};

class MpvLibrary {
 public:
  // Loads the library on a thread of its own, so that the first piece need not wait for the disk.
  void prepare();
  // Loads the library at the first call; null where it cannot be loaded. Valid as long as this object.
  [[nodiscard]] const MpvFunctions* functions();

 private:
  std::future<std::optional<MpvFunctions>> loading_;
  std::optional<MpvFunctions> functions_;
};

}  // namespace devices
