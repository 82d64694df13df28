#include "console/ride_screen.h"

#include <algorithm>

#include "console/profile.h"
#include "forms/main_form_words.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace console {
namespace {

std::string oneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return platform::trim(text);
}

void append(std::string& line, const std::string& words) {
  if (words.empty()) return;
  line += (line.empty() ? "" : "  ·  ") + words;
}

// The target as the plan holds it: beats and percentage, however the ride shows them.
std::string targetOf(const model::SharedState& state) {
  const auto row = static_cast<std::size_t>(state.plan.sequenceCourante);
  if (row >= state.plan.rows.size()) return {};
  const std::string& target = state.plan.rows[row].planFreqCard;
  return target == model::noTarget || target.starts_with("--") ? std::string() : target;
}

void append(std::string& line, const char* name, const std::string& value) {
  const std::string words = oneLine(value);
  if (!words.empty()) append(line, std::string(name) + " " + words);
}

std::string presentLine(const forms::MainForm& form, const model::SharedState& state) {
  if (!state.plan.started()) {
    return forms::countdownRuns(form) ? "Départ dans " + form.Label9.caption.get() + " s"
                                      : form.Label18.caption.get();
  }
  std::string line = forms::timeInDigits(form);
  if (forms::ridePaused(form)) append(line, "PAUSE");
  append(line, form.Label43.caption.get());
  append(line, oneLine(form.Label11.caption));
  append(line, "cadence", form.Label10.caption);
  append(line, oneLine(form.Label39.caption));
  return line;
}

std::string totalsLine(const forms::MainForm& form, const model::SharedState& state) {
  std::string line;
  if (state.plan.started()) append(line, "Cible", targetOf(state));
  append(line, "Reste", model::formatTime(state.dureeTotale));
  append(line, "séquence", form.Label16.caption);
  append(line, "séance", form.Label17.caption);
  return line;
}

}  // namespace

void RideScreen::erase() {
  if (drawn_ == 0) return;
  out_ << "\x1b[" << drawn_ << "A\r\x1b[J";
  drawn_ = 0;
}

void RideScreen::draw() {
  for (const std::string& line : lines_) out_ << line << '\n';
  drawn_ = lines_.size();
  out_.flush();
}

void RideScreen::printLine(const std::string& line) {
  erase();
  out_ << line << '\n';
  if (terminal_.canRedraw()) draw();
  out_.flush();
}

void RideScreen::show(const forms::MainForm& form, const model::SharedState& state) {
  const std::string sequence = state.plan.started() ? std::to_string(state.seanceCourante) + "/" +
                                                          std::to_string(state.plan.sequenceCourante)
                                                    : std::string();
  if (!terminal_.canRedraw()) {
    // Until its first second has passed, the fields still show the sequence before.
    if (sequence == sequence_ || !forms::chronoRuns(form) || state.ecouleSequence <= 0) return;
    sequence_ = sequence;
    printLine(presentLine(form, state) + "  ·  " + totalsLine(form, state));
    return;
  }
  const auto width = static_cast<std::size_t>(std::max(10, terminal_.width() - 1));
  const Profile profile = profileOf(state, static_cast<int>(std::min<std::size_t>(width, 72)));
  std::vector<std::string> lines{platform::left(presentLine(form, state), width),
                                 platform::left(totalsLine(form, state), width), profile.blocks};
  lines.push_back(profile.place < 0 ? std::string()
                                    : std::string(static_cast<std::size_t>(profile.place), ' ') + "▲");
  lines.push_back(platform::left("p : pause ou reprise   q : annuler", width));
  if (lines == lines_ && drawn_ > 0) return;
  erase();
  lines_ = std::move(lines);
  draw();
}

}  // namespace console
