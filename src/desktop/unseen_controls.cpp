#include "desktop/unseen_controls.h"

#include <algorithm>
#include <array>

#include "platform/form.h"

namespace desktop {
namespace {

constexpr std::string_view readOut = "a hidden read-out of the row in hand";
constexpr std::string_view helper = "a hidden helper that only lists files";
constexpr std::string_view films = "Label20 and Image7 open the films already";
constexpr std::string_view columnHead = "the grid's header shows its tool tip over the column";
constexpr std::string_view worker = "a hidden worker that code presses";
constexpr std::string_view neverShown = "hidden from the start, and nothing ever shows it";

constexpr std::array<UnseenControl, 47> table{{
    {"MainForm", "MyFrame4", neverShown},
    {"MainForm", "Image19", neverShown},
    {"MainForm", "Image2", neverShown},
    {"MainForm", "Label12", "the remark is always empty"},
    {"MainForm", "Combo4", "never filled, and never shown"},
    {"MainForm", "Combo6", "never filled, and never shown"},
    {"CreerCycle", "File1", helper},
    {"CreerCycle", "File2", helper},
    {"CreerCycle", "File3", helper},
    {"CreerCycle", "Label7", readOut},
    {"CreerCycle", "Label10", readOut},
    {"CreerCycle", "Label11", readOut},
    {"CreerCycle", "Label12", readOut},
    {"CreerCycle", "Label15", readOut},
    {"CreerCycle", "Label16", readOut},
    {"CreerCycle", "Label17", readOut},
    {"CreerCycle", "Label18", readOut},
    {"CreerCycle", "Label32", readOut},
    {"CreerCycle", "Label29", "a hidden read-out of the cell under the pointer"},
    {"CreerCycle", "Picture5", neverShown},
    {"CreerCycle", "Command1", neverShown},
    {"CreerCycle", "Image1", films},
    {"CreerCycle", "Image6", films},
    {"CreerCycle", "MyButton14", columnHead},
    {"CreerCycle", "MyButton15", columnHead},
    {"CreerCycle", "MyButton16", columnHead},
    {"CreerCycle", "MyButton17", columnHead},
    {"CreerCycle", "MyButton18", columnHead},
    {"CreerCycle", "MyButton19", columnHead},
    {"CreerCycle", "MyButton20", columnHead},
    {"CreerCycle", "MyButton21", columnHead},
    {"CreerCycle", "MyButton22", columnHead},
    {"CreerCycle", "MyButton23", columnHead},
    {"CreerCycle", "Combo9", neverShown},
    {"CreerCycle", "Label58", neverShown},
    {"CreerCycle", "Label49", neverShown},
    {"CreerCycle", "Label51", neverShown},
    {"CreerCycle", "MyButton27", neverShown},
    {"CreerCycle", "MyButton29", neverShown},
    {"EnrUneAnnonce", "File1", helper},
    {"EnrUneAnnonce", "Label23", "Label6 says the same name, and fits it by itself"},
    {"EnrUneAnnonce", "Label26", "only measures"},
    {"VolumeGeneral", "Image1", "where Image3 takes its picture from"},
    {"VolumeGeneral", "Image4", "where Image3 takes its picture from"},
    {"ImprimerTQ1", "Command1", worker},
    {"ImprimerTQ1", "Command2", worker},
    {"ImprimerTQ1", "Command3", worker},
}};

}  // namespace

std::span<const UnseenControl> unseenControls() {
  return table;
}

bool isUnseen(const platform::Component& component) {
  return std::any_of(table.begin(), table.end(), [&](const UnseenControl& row) {
    return row.form == component.form().name() && row.control == component.name();
  });
}

}  // namespace desktop
