#include "player/bars.h"

#include <algorithm>
#include <cmath>

#include "model/numbers.h"
#include "player/measures.h"

namespace player {
namespace {

using platform::Colour;

constexpr Colour couleurDepart = Colour::rgb(0xFF, 0xFF, 0xFF);
constexpr Colour couleurFin = Colour::rgb(0xFF, 0xFF, 0x00);
constexpr int progressWidth = 5000;
constexpr int volumeHeight = 1500;

std::uint8_t mix(std::uint8_t from, std::uint8_t to, double fraction) {
  return static_cast<std::uint8_t>(std::lround(from * (1 - fraction) + to * fraction));
}

Colour mix(const Colour& from, const Colour& to, double fraction) {
  return Colour::rgb(mix(from.red, to.red, fraction), mix(from.green, to.green, fraction),
                     mix(from.blue, to.blue, fraction));
}

std::string wholePart(double value) {
  return std::to_string(static_cast<std::int64_t>(std::floor(value)));
}

}  // namespace

Bars::Bars(forms::LectMCI& form, platform::EventLoop& loop, Medium& medium)
    : player_(form), loop_(loop), medium_(medium) {
  player_.PicProgress.width = progressWidth;
  player_.PicVolume.height = volumeHeight;
  attachProgress();
  attachVolume();
}

void Bars::attachProgress() {
  player_.PicProgress.mouseDown.handle([this](const Pointer& at) { pressProgress(at); });
  player_.PicProgress.mouseMove.handle([this](const Pointer& at) { dragProgress(at); });
  player_.PicProgress.mouseUp.handle([this](const Pointer& at) { releaseProgress(at); });
}

void Bars::attachVolume() {
  player_.PicVolume.mouseDown.handle([this](const Pointer& at) { volumeByMouse(at.y); });
  player_.PicVolume.mouseMove.handle([this](const Pointer& at) {
    if (at.left) volumeByMouse(at.y);
  });
  player_.PicVolume.mouseUp.handle([this](const Pointer& at) { volumeByMouse(std::max(at.y, 0.0)); });
  player_.VScroll1.change.handle([this] { volumeByScroll(); });
  player_.VScroll1.scroll.handle([this] { volumeByScroll(); });
}

void Bars::viderProgression() {
  if (medium_.longueur == 0) medium_.longueur = 1000;  // a scale has to have a length
  player_.PicProgress.span = medium_.longueur;
  player_.PicProgress.strips.clear();
}

void Bars::peindreProgression(double position) {
  platform::PaintBar& bar = player_.PicProgress;
  const int pixels = bar.width / twipsPerPixel;
  bar.strips.clear();
  for (int pixel = 0; pixel < pixels; ++pixel) {
    const double fraction = static_cast<double>(pixel) / pixels;
    if (fraction * bar.span > position) break;
    bar.strips.push_back(mix(couleurDepart, couleurFin, fraction));
  }
}

void Bars::pressProgress(const Pointer& at) {
  player_.Timer1.enabled = false;
  if (!medium_.chargé) return;
  peindreProgression(std::floor(at.x));
  medium_.send("stop");
  if (!medium_.enPause) medium_.send("play", " from " + wholePart(at.x));
}

void Bars::dragProgress(const Pointer& at) {
  medium_.glisse = at.left && medium_.chargé;
  if (!medium_.glisse) return;
  peindreProgression(std::floor(at.x));
  if (!medium_.enPause) medium_.send("seek", " to " + wholePart(at.x));
}

void Bars::releaseProgress(const Pointer& at) {
  if (medium_.chargé && medium_.enPause) {
    peindreProgression(std::floor(at.x));
    medium_.send("seek", " to " + wholePart(at.x));
  } else if (medium_.chargé && medium_.glisse) {
    medium_.send("stop");
    loop_.serveEvents();
    medium_.send("play", " from " + wholePart(at.x));
  }
  player_.Timer1.enabled = true;
}

void Bars::peindreVolume(double value) {
  platform::PaintBar& bar = player_.PicVolume;
  const auto pixels = std::lround(std::clamp(value, 0.0, 1.0) * bar.height / twipsPerPixel);
  bar.strips.assign(static_cast<std::size_t>(pixels), couleurFin);
}

void Bars::volumeByMouse(double y) {
  peindreVolume(y);
  medium_.sendWhole("setaudio " + medium_.alias + " volume to " + wholePart(y * 1000));
}

void Bars::volumeByScroll() {
  const int value = player_.VScroll1.value;
  peindreVolume(value / 100.0);
  medium_.sendWhole("setaudio " + medium_.alias + " volume to " + std::to_string(value * 10));
  player_.Label3.caption = model::plainNumber(value / 10.0);
}

}  // namespace player
