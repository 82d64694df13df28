#include "devices/mpv_library.h"

#include <dlfcn.h>

#include <chrono>
#include <thread>

namespace devices {
namespace {

template <class Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

std::optional<MpvFunctions> load() {
  // Never unloaded: some of the libraries behind it keep things of theirs in threads and at the program's
  // end.
  void* library = dlopen("libmpv.so.2", RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
  if (library == nullptr) return std::nullopt;
  MpvFunctions found;
  const bool whole =
      find(library, "mpv_create", found.create) && find(library, "mpv_initialize", found.initialize) &&
      find(library, "mpv_terminate_destroy", found.destroy) &&
      find(library, "mpv_set_option_string", found.setOption) &&
      find(library, "mpv_get_property_async", found.askProperty) &&
      find(library, "mpv_set_property_async", found.setProperty) &&
      find(library, "mpv_command_async", found.command) && find(library, "mpv_wait_event", found.waitEvent);
  return whole ? std::optional(found) : std::nullopt;
}

}  // namespace

MpvEnds::~MpvEnds() {
  std::unique_lock guard(pending_->mutex);
  pending_->fewer.wait_for(guard, std::chrono::seconds(1), [this] { return pending_->count == 0; });
}

void MpvEnds::end(const MpvFunctions& mpv, mpv_handle* handle) {
  {
    const std::lock_guard guard(pending_->mutex);
    ++pending_->count;
  }
  std::thread([destroy = mpv.destroy, handle, pending = pending_] {
    destroy(handle);
    {
      const std::lock_guard guard(pending->mutex);
      --pending->count;
    }
    pending->fewer.notify_all();
  }).detach();
}

void MpvLibrary::prepare() {
  if (!functions_ && !loading_.valid()) loading_ = std::async(std::launch::async, load);
}

const MpvFunctions* MpvLibrary::functions() {
  if (!functions_) {
    prepare();
    functions_ = loading_.get();
  }
  return functions_ ? &*functions_ : nullptr;
}

}  // namespace devices
