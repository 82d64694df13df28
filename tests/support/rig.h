// Forms, loop and recorded devices for the logic of one screen, without a voice.
#pragma once

#include <deque>
#include <vector>

#include "context/context.h"
#include "rehearsal/memory_file_system.h"
#include "rehearsal/simulated_clock.h"
#include "support/faulty_file_system.h"
#include "support/recorded_devices.h"

namespace support {

struct RecordedDialogs final : platform::Dialogs {
  std::vector<platform::Message> messages;
  std::deque<platform::Answer> next;
  platform::Answer message(const platform::Message& message) override {
    messages.push_back(message);
    if (next.empty()) return platform::Answer::Ok;
    const platform::Answer answer = next.front();
    next.pop_front();
    return answer;
  }
  std::vector<std::string> chooseFiles(const platform::FileRequest&) override { return {}; }
};

struct Rig {
  Rig() {
    for (platform::Form* form : screens.all()) form->attach(loop);
    state.dossierProgramme = "/home/";
  }
  void advance(int ms) { loop.runUntil(clock.now() + platform::Instant{ms}); }

  struct : platform::SoundOutput {
    bool hasDevice() override { return false; }
    void play(const platform::SoundClip&) override {}
    void playFile(const std::string&) override {}
  } sound;
  struct : platform::ScreenSaver {
    bool active() override { return false; }
    void setActive(bool) override {}
  } saver;
  rehearsal::SimulatedClock clock{platform::LocalTime{std::chrono::days(20773) + std::chrono::hours(7)}};
  platform::EventLoop loop{clock};
  forms::Screens screens;
  model::SharedState state;
  rehearsal::MemoryFileSystem memory;
  FaultyFileSystem disk{memory};
  RecordedDialogs dialogs;
  struct : platform::MediaCommands {
    std::string send(const std::string&) override { return {}; }
    void workIn(const std::string&) override {}
  } media;
  struct : platform::OutputLevel {
    bool set(std::uint16_t, std::uint16_t) override {
      ++told;
      return there;
    }
    bool there = true;
    int told = 0;
  } level;
  RecordedShell shell;
  RecordedVolume volume;
  RecordedPrinter printer;
  struct : platform::Clipboard {
    std::string held;
    std::string text() override { return held; }
    void setText(const std::string& text) override { held = text; }
  } clipboard;
  platform::Outside outside{clock, sound, dialogs, disk,    saver,    media,
                            level, shell, volume,  printer, clipboard};
  context::Context context{screens, state, loop, outside};
};

}  // namespace support
