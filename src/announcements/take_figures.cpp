#include "announcements/take_figures.h"

#include <cmath>

#include "model/numbers.h"

namespace announcements {
namespace {

// Always with two decimals.
std::string megabytes(double value) {
  const long long hundredths = std::llround(value * 100);
  const std::string decimals = std::to_string(hundredths % 100 + 100).substr(1);
  return std::to_string(hundredths / 100) + "." + decimals + " Mo";
}

}  // namespace

TakeFigures::TakeFigures(const context::Context& context)
    : page_(context.screens.announcements), take_(context.state.take), media_(context.outside.media) {
  page_.Command5.click.handle([this] { show(); });
}

double TakeFigures::ask(const char* figure) {
  return model::lenientNumber(media_.send(std::string("status capture ") + figure));
}

void TakeFigures::show() {
  media_.send("set capture time format ms");
  const double length = ask("length");
  take_.length = static_cast<int>(length);
  std::string lines = "Milliseconds = " + model::plainNumber(length) + "\n";
  media_.send("set capture time format bytes");
  page_.Label8.caption = megabytes(ask("length") / 1024 / 1024);
  lines += "Mo = " + page_.Label8.caption.get() + "\n";
  const double channels = ask("channels");
  if (channels == 1) lines += "Channels = 1 (mono)\n";
  if (channels == 2) lines += "Cannaux = 2 (stereo)\n";
  lines += "Bits per sample = " + model::plainNumber(ask("bitspersample")) + "\n";
  lines += "Bytes per second = " + model::plainNumber(ask("bytespersec")) + "\n";
  page_.Label3.caption = lines;
}

}  // namespace announcements
