// A player library that does not answer.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <thread>

#include "devices/mpv_player.h"

namespace devices {
namespace {

// Stands in for the library's core, which opens a piece of a minute and then hangs.
struct Core {
  bool answers = true;
  double waited = 0;  // seconds
  std::deque<std::uint64_t> asked;
  double number = 60;
  mpv_event_property property{nullptr, MPV_FORMAT_DOUBLE, &number};
  mpv_event event{};
  std::atomic<bool> mayEnd = false;
};
Core* heart = nullptr;

mpv_event* nextEvent(mpv_handle*, double patience) {
  heart->event = {};
  if (heart->answers && !heart->asked.empty()) {
    heart->event.event_id = MPV_EVENT_GET_PROPERTY_REPLY;
    heart->event.reply_userdata = heart->asked.front();
    heart->event.data = &heart->property;
    heart->asked.pop_front();
  } else {
    heart->waited += patience;
    std::this_thread::sleep_for(std::chrono::duration<double>(patience));
  }
  return &heart->event;
}

mpv_event* openedEvent(mpv_handle* handle, double patience) {
  if (patience == 0 || !heart->asked.empty()) return nextEvent(handle, patience);
  heart->event = {};
  heart->event.event_id = MPV_EVENT_FILE_LOADED;
  return &heart->event;
}

TEST(MpvPlayer, WaitsOnceForALibraryThatHangs) {
  Core hanging;
  heart = &hanging;
  MpvFunctions mpv;
  mpv.create = [] { return reinterpret_cast<mpv_handle*>(heart); };
  mpv.initialize = [](mpv_handle*) { return 0; };
  mpv.setOption = [](mpv_handle*, const char*, const char*) { return 0; };
  mpv.setProperty = [](mpv_handle*, std::uint64_t, const char*, mpv_format, void*) { return 0; };
  mpv.command = [](mpv_handle*, std::uint64_t, const char**) { return 0; };
  mpv.askProperty = [](mpv_handle*, std::uint64_t question, const char*, mpv_format) {
    heart->asked.push_back(question);
    return 0;
  };
  mpv.destroy = [](mpv_handle*) { heart->mayEnd.wait(false); };
  mpv.waitEvent = &openedEvent;
  {
    MpvEnds ends;
    {
      MpvPlayer player(mpv, ends, "x.mp3");
      ASSERT_TRUE(player.opened());
      EXPECT_EQ(player.length(), 60000);
      heart->answers = false;
      mpv.waitEvent = &nextEvent;
      for (int i = 0; i < 10; ++i) {
        player.seek(1000 * i);
        player.awaitOutput();
        player.play();
        EXPECT_EQ(player.position(), 1000 * i);
        EXPECT_FALSE(player.unheard());
        player.stop();
      }
      EXPECT_LT(heart->waited, 0.3);
      MpvPlayer never(mpv, ends, "y.mp3");
      EXPECT_FALSE(never.opened());
      EXPECT_LT(heart->waited, 1);
      heart->answers = true;
      EXPECT_FALSE(player.unheard());  // it has heard the answer, and asked again
      EXPECT_TRUE(heart->asked.empty());
    }
    // Their ends have not come, and nobody has waited for them.
    hanging.mayEnd = true;
    hanging.mayEnd.notify_all();
  }
}

}  // namespace
}  // namespace devices
