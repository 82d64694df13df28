#include "desktop/covered_parts.h"

#include <array>

#include "platform/control.h"

namespace desktop {
namespace {

struct CoveredPart {
  std::string_view form;
  std::string_view part;  // a widget of the page
  std::string_view by;    // a control that covers the part while visible
};

constexpr std::array<CoveredPart, 10> table{{
    {"MainForm", "ridePage", "Picture1"},
    {"MainForm", "ridePage", "MyFrame2"},
    {"MainForm", "countdownPage", "Picture1"},
    {"MainForm", "buttonRow", "Picture6"},
    {"CreerCycle", "ListView1", "Picture8"},  // the right columns and their cell editors
    {"CreerCycle", "Combo1", "Picture8"},
    {"CreerCycle", "Combo13", "Picture8"},
    {"CreerCycle", "Picture2", "Picture8"},
    {"EnrUneAnnonce", "recordingPlace", "MyFrame1"},
    {"EnrUneAnnonce", "libraryHome", "MyFrame5"},
}};

}  // namespace

std::optional<std::string_view> coverOf(const platform::Form& form, std::string_view part) {
  for (const CoveredPart& row : table) {
    if (row.form != form.name() || row.part != part) continue;
    if (static_cast<const platform::Control&>(form.find(row.by)).visible) return row.by;
  }
  return std::nullopt;
}

}  // namespace desktop
