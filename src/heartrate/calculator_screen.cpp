#include "heartrate/calculator_screen.h"

#include <algorithm>
#include <array>

#include "forms/creer_cycle_words.h"
#include "heartrate/formulas.h"
#include "heartrate/help_texts.h"
#include "heartrate/input_checks.h"
#include "model/numbers.h"
#include "platform/each_on_its_own.h"

namespace heartrate {
namespace {

using forms::CreerCycle;
using platform::Label;

constexpr int topInNormalWindow = 360;  // twips

struct BandLine {
  Label CreerCycle::*value;
  Band band;
};
constexpr std::array<BandLine, 5> bandLines{{{&CreerCycle::Label50, {60, 70}},
                                             {&CreerCycle::Label52, {50, 60}},
                                             {&CreerCycle::Label53, {60, 70}},
                                             {&CreerCycle::Label54, {70, 85}},
                                             {&CreerCycle::Label55, {85, 100}}}};
constexpr std::array<Label CreerCycle::*, 9> valueLabels{
    &CreerCycle::Label49, &CreerCycle::Label50, &CreerCycle::Label51,
    &CreerCycle::Label52, &CreerCycle::Label53, &CreerCycle::Label54,
    &CreerCycle::Label55, &CreerCycle::Label56, &CreerCycle::Label57};

// The boxes that each method shows. Karvonen hides the age although it reads it, as it always did.
struct BoxesOfMethod {
  bool age, sex, fcMax, fcRepos, note;
};
constexpr BoxesOfMethod ofAgeMethod{true, false, false, false, true};
constexpr std::array<BoxesOfMethod, methodCount> boxesOfMethods{ofAgeMethod,
                                                                ofAgeMethod,
                                                                ofAgeMethod,
                                                                ofAgeMethod,
                                                                {false, false, false, true, false},
                                                                {true, true, true, true, true}};

}  // namespace

CalculatorScreen::CalculatorScreen(const context::Context& context, Figures& figures)
    : context_(context), editor_(context.screens.editor), figures_(figures) {
  editor_.MyButton25.click.handle([this] { ouvrirCalculateur(); });
  editor_.MyButton38.click.handle([this] { calculerFrequences(); });
  editor_.Command2.click.handle([this] { fermer(); });
  editor_.Timer10.tick.handle([this] { surveiller(); });
  attachInputs();
}

void CalculatorScreen::attachInputs() {
  editor_.Combo8.click.handle([this] { choisirMethode(); });
  editor_.Combo7.click.handle([this] {
    if (!byReserve(editor_.Combo8.index)) calculerFrequences();
  });
  for (platform::ComboBox* box : {&editor_.Combo11, &editor_.Combo12}) {
    box->click.handle([this] {
      if (byReserve(editor_.Combo8.index)) calculerFrequences();
    });
  }
}

void CalculatorScreen::clearDesignTexts() {
  if (!forms::resultsUntouched(editor_)) return;
  for (const auto label : valueLabels) (editor_.*label).caption = "";
}

void CalculatorScreen::ouvrirCalculateur() {
  editor_.Command1.click();
  editor_.Combo1.visible = false;
  editor_.Combo13.visible = false;
  hideHelp(editor_);
  platform::Frame& panel = editor_.Picture8;
  const platform::Frame& window = editor_.MyFrame2;  // takes the form's size when that is maximised
  panel.left = editor_.maximised ? std::max(0, (window.width - panel.width) / 2) : 0;
  panel.top = editor_.maximised ? std::max(0, (window.height - panel.height) / 2) : topInNormalWindow;
  panel.visible = true;
  editor_.Timer10.enabled = true;
}

void CalculatorScreen::calculerFrequences() {
  if (figures_.loading()) return;
  editor_.Combo9.text = "100";
  if (!requireFigures(context_.outside.dialogs, editor_)) return;
  // From here on the method in use counts, not the one shown: the box over the grid may have changed it.
  const int methode = figures_.methodeFC;
  if (!byAge(methode) && !byReserve(methode)) return;
  if (byAge(methode) && isBlank(editor_.Combo7)) return;
  platform::eachOnItsOwn([&] {
    const auto fcMax = fcMaxMethode(methode, editor_.Combo7.text.get(), editor_.Combo12.text.get(),
                                    editor_.Combo9.text.get());
    if (fcMax) editor_.Combo11.text = *fcMax;
  });
  const double fcMax = model::lenientNumber(editor_.Combo11.text.get());
  const double fcRepos = model::lenientNumber(editor_.Combo12.text.get());
  editor_.Label56.caption = reserveText(fcMax, fcRepos);
  for (std::size_t i = 0; i < bandLines.size(); ++i) {
    const BandLine& line = bandLines.at(i);
    const model::HeartZone zone = zoneOf(methode, fcMax, fcRepos, line.band);
    context_.state.heartZones.at(i) = zone;
    (editor_.*line.value).caption = zoneText(zone);
  }
  editor_.Label57.caption =
      workRateText(methode, fcMax, fcRepos, model::lenientNumber(editor_.Combo9.text.get()));
}

void CalculatorScreen::choisirMethode() {
  if (figures_.loading()) return;
  const int methode = editor_.Combo8.index;
  // Before the check, so that the boxes are there for what it finds missing.
  showBoxesOf(methode);
  if (!requireFigures(context_.outside.dialogs, editor_)) return;
  if (methode < 0 && isBlank(editor_.Combo7)) {
    editor_.MyButton41.click();
    return;
  }
  figures_.methodeFC = methode;
  if (!isBlank(editor_.Combo7)) calculerFrequences();
}

void CalculatorScreen::showBoxesOf(int methode) {
  if (methode >= 0 && methode < methodCount) {
    const BoxesOfMethod& boxes = boxesOfMethods.at(static_cast<std::size_t>(methode));
    editor_.Combo7.visible = boxes.age;
    editor_.Combo10.visible = boxes.sex;
    editor_.Combo11.visible = boxes.fcMax;
    editor_.Combo12.visible = boxes.fcRepos;
    editor_.Label62.visible = boxes.note;
  }
  if (methode != ownFigures) {
    editor_.Label58.visible = false;
    editor_.Combo9.visible = false;
  }
}

void CalculatorScreen::surveiller() {
  if (forms::noTargetMode(editor_)) editor_.Check1.value = 1;
  offerSaving();
  editor_.Timer10.rest({&editor_.Check1.value, &editor_.Check2.value, &editor_.Check3.value,
                        &editor_.Combo7.text, &editor_.Combo8.index, &editor_.Combo10.text,
                        &editor_.Combo11.text, &editor_.Combo12.text, &editor_.MyButton38.visible,
                        &editor_.MyButton40.visible, &figures_.persoAge, &figures_.persoSexe,
                        &figures_.persoFCMax, &figures_.persoFCRepos, &figures_.persoMethode});
}

// Only on the rider's own figures, and only where the screen differs from the file.
void CalculatorScreen::offerSaving() {
  if (editor_.Combo8.index != ownFigures) {
    editor_.MyButton40.visible = false;
    return;
  }
  const bool same = holds(editor_.Combo7, figures_.persoAge) && holds(editor_.Combo10, figures_.persoSexe) &&
                    holds(editor_.Combo11, figures_.persoFCMax) &&
                    holds(editor_.Combo12, figures_.persoFCRepos) &&
                    model::lenientInteger(figures_.persoMethode.get()) == ownFigures;
  if (same) editor_.MyButton38.visible = false;  // and nothing shows it again
  editor_.MyButton40.visible = !same;
}

void CalculatorScreen::fermer() {
  const bool same = holds(editor_.Combo7, figures_.persoAge) && holds(editor_.Combo11, figures_.persoFCMax) &&
                    holds(editor_.Combo12, figures_.persoFCRepos);
  if (!same) {
    const platform::Answer answer = context_.outside.dialogs.message(
        {platform::MessageKind::Information, platform::MessageButtons::YesNoCancel,
         "Paramètres Différents...",
         "Vous avez Modifié certaines Données par rapport à vos (Paramètres Persos)...\n"
         "Voulez les Enregistrer O/N...?"});
    if (answer == platform::Answer::Cancel) return;
    if (answer == platform::Answer::Yes) editor_.MyButton40.click();
  }
  editor_.Picture8.visible = false;
  editor_.Timer10.enabled = false;
}

}  // namespace heartrate
