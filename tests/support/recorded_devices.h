// A master volume, a desktop and a printer that record what they are asked; the printer can be made to fail.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/endpoint_volume.h"
#include "platform/printer.h"
#include "platform/shell.h"

namespace support {

struct RecordedVolume final : platform::EndpointVolume {
  bool present = true;
  bool silent = false;
  double loudness = 0.8;
  std::string name = "Haut-parleurs";
  int writes = 0;

  bool open() override { return present; }
  bool muted() override { return silent; }
  void setMuted(bool muted) override { silent = muted, ++writes; }
  double level() override { return loudness; }
  void setLevel(double level) override { loudness = level, ++writes; }
  int channels() override { return 2; }
  std::string deviceName() override { return name; }
};

struct RecordedShell final : platform::Shell {
  std::vector<std::string> opened;
  bool network = true;
  void openFile(const std::string& path) override { opened.push_back(path); }
  void openAddress(const std::string& url) override { opened.push_back(url); }
  void openSoundSettings() override { opened.emplace_back("sound settings"); }
  bool connected() override { return network; }
};

struct RecordedPrinter final : platform::Printer {
  std::vector<std::string> calls;
  std::vector<platform::PageGrid> pages;
  std::function<void()> onPicture = [] {};  // may throw

  void setOrientation(platform::PageOrientation orientation) override {
    calls.push_back("orientation " + std::to_string(static_cast<int>(orientation)));
  }
  void setColourMode(platform::ColourMode mode) override {
    calls.push_back("colour " + std::to_string(static_cast<int>(mode)));
  }
  void setPaperSize(platform::PaperSize) override { calls.emplace_back("A4"); }
  void setQuality(platform::PrintQuality quality) override {
    calls.emplace_back(quality == platform::PrintQuality::High ? "high" : "draft");
  }
  void paintPicture(const platform::PageGrid& grid, int left, int top) override {
    onPicture();
    calls.push_back("picture " + std::to_string(left) + " " + std::to_string(top));
    pages.push_back(grid);
  }
  void printLine(const std::string& line) override { calls.push_back(line); }
  void endDocument() override { calls.emplace_back("end"); }
  void killDocument() override { calls.emplace_back("kill"); }
  void finish() override { calls.emplace_back("finish"); }
};

}  // namespace support
