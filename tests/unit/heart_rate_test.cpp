#include <gmock/gmock.h>

#include <random>

#include "heartrate/calculator.h"
#include "heartrate/formulas.h"
#include "model/grid_rows.h"
#include "support/rig.h"

namespace {

using namespace heartrate;
using platform::Answer;
using Call = support::FaultyFileSystem::Call;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string figuresPath = "/home/ParPerso.tq1";
std::string record(const std::string& figures, const std::string& methodAndMode) {
  return figures + methodAndMode + std::string(21, ' ');
}
const std::string saved = record("40 F\xE9minin 190050", "51");

// The calculator in a loaded form, over a disk that may hold a record.
struct HeartRate : testing::Test, support::Rig {
  forms::CreerCycle& form = screens.editor;
  std::vector<std::string> faults;
  Calculator calculator{context};

  void load(const std::optional<std::string>& stored = std::nullopt) {
    if (stored) memory.put(figuresPath, *stored);
    loop.onFault([this](const std::string& fault) { faults.push_back(fault); });
    form.onLoad.handle([this] { calculator.load([] {}); });
    form.load();
  }
  void pick(platform::ComboBox& box, const std::string& line) {
    const auto at = std::find(box.lines().begin(), box.lines().end(), line);
    ASSERT_NE(at, box.lines().end()) << line;
    box.pick(static_cast<int>(at - box.lines().begin()));
  }
  // The rows below the first one, by their heart-rate cells.
  void fillGrid(const std::vector<std::string>& targets) {
    for (platform::GridColumn& column : model::gridColumns(false)) form.ListView1.addColumn(column);
    form.ListView1.addRow(model::firstRow());
    for (const std::string& target : targets) {
      form.ListView1.addRow(model::closingRow(2, "x"));
      form.ListView1.setText(form.ListView1.rowCount(), model::column::heartRate, target);
    }
  }
  std::string target(int row) const { return form.ListView1.text(row, model::column::heartRate); }
  // The four figures, the method in its two boxes, the mode of the targets and its three boxes.
  std::string shown() const {
    std::string all;
    for (const platform::ComboBox* box : {&form.Combo7, &form.Combo10, &form.Combo11, &form.Combo12})
      all += box->text.get() + "|";
    for (const int number : {form.Combo8.index.get(), form.Combo13.index.get(), state.modeAffichageFC,
                             form.Check1.value.get(), form.Check2.value.get(), form.Check3.value.get()})
      all += std::to_string(number);
    return all;
  }
};

TEST(Formulas, GiveTheMaximalRateByMethod) {
  for (const auto& [methode, age, rest, expected] : {std::tuple{0, "40", "", "180"},
                                                     {0, " 40.5 ", "", "179.5"},
                                                     {1, "40", "", "178"},
                                                     {1, "35", "", "182"},
                                                     {1, "35 ans", "", "182"},
                                                     {1, "", "", "206"},
                                                     {2, "40", "", "179"},
                                                     {3, "40", "", "179"},
                                                     {3, "45", "", "176"},
                                                     {4, "40", "60", "240"},
                                                     {5, "40", "60", "none"},
                                                     {-1, "40", "60", "none"}}) {
    EXPECT_EQ(fcMaxMethode(methode, age, rest, "100").value_or("none"), expected) << methode << ' ' << age;
  }
  for (const auto& [methode, age, rest] :
       {std::tuple{0, "abc", "60"}, {0, " ", "60"}, {4, "4O", "60"}, {4, "40", " "}})
    EXPECT_THROW((void)fcMaxMethode(methode, age, rest, "100"), platform::Fault) << methode << age << rest;
}

TEST(Formulas, ReadTheOperandsOfTheWriterWhoAsks) {
  const TargetOperands mixed{"40", "60", "30", "190", "50"};
  for (const auto& [methode, pick, rewrite] : {std::tuple{0, 144.0, 152.0},
                                               {1, 148.2, 148.2},
                                               {2, 149.3872, 149.3872},
                                               {3, 148.8, 148.8},
                                               {4, 188, 188},
                                               {5, 162, 162}}) {
    EXPECT_NEAR(cibleFC(TargetWriter::CellPick, methode, 80, mixed).value(), pick, 1e-9) << methode;
    EXPECT_NEAR(cibleFC(TargetWriter::ColumnRewrite, methode, 80, mixed).value(), rewrite, 1e-9) << methode;
  }
  EXPECT_EQ(cibleFC(TargetWriter::CellPick, -1, 80, mixed), std::nullopt);
  // Only what the method reads has to be a number.
  EXPECT_EQ(cibleFC(TargetWriter::CellPick, 0, 50, {"40", "", " ", " ", " "}), 90);
  EXPECT_EQ(cibleFC(TargetWriter::ColumnRewrite, 4, 50, {" ", "60", " ", " ", " "}), 140);
  EXPECT_THROW((void)cibleFC(TargetWriter::ColumnRewrite, 0, 50, {"40", "", " ", " ", " "}), platform::Fault);
}

TEST(Formulas, RoundTheBandsHalfAwayFromZero) {
  EXPECT_EQ(zoneText(zoneOf(0, 180, 60, {70, 85})), "126 à 153");
  EXPECT_EQ(zoneText(zoneOf(5, 190, 50, {60, 70})), "134 à 148");
  EXPECT_EQ(zoneText(zoneOf(3, 175, 0, {50, 60})), "88 à 105");  // 87.5
  EXPECT_EQ(zoneText(zoneOf(0, 0, 0, {50, 60})), " à ");
  EXPECT_EQ(reserveText(180, 0), "180");
  EXPECT_EQ(workRateText(1, 178, 60, 50), "119");
  EXPECT_EQ(workRateText(5, 178, 60, 50), "89");
}

TEST_F(HeartRate, StartsBlankOnANewDiskAndClosesUntouched) {
  load();
  EXPECT_EQ(*memory.files.at(figuresPath), "");
  EXPECT_EQ(shown(), " | | | |001100");
  EXPECT_EQ(calculator.figures().persoMethode, "0");
  EXPECT_EQ(form.Label50.caption, "");
  EXPECT_FALSE(form.Label62.visible);
  form.MyButton25.click();
  form.Command2.click();
  EXPECT_FALSE(form.Picture8.visible);
  EXPECT_THAT(dialogs.messages, testing::IsEmpty());
}

TEST_F(HeartRate, ComesUpWithTheSavedFigures) {
  std::string stored = saved;
  stored[18] = '3';
  load(stored);
  EXPECT_EQ(shown(), "40|Féminin|190|050|553001");
  EXPECT_EQ(calculator.figures().methodeFC, 5);
  EXPECT_EQ(form.Label50.caption.get() + "|" + form.Label56.caption.get(), "134 à 148|140");
}

TEST_F(HeartRate, TakesARecordWithoutAnAgeForANewOne) {
  load(record("   Masculin190050", "53"));
  EXPECT_EQ(shown(), " | | | |003001");
}

// What is cut off or damaged never keeps the form from loading, and leaves both method boxes alike.
struct DamagedRecord : HeartRate, testing::WithParamInterface<int> {};
TEST_P(DamagedRecord, LoadsAllTheSame) {
  const int number = GetParam();
  std::string stored = saved.substr(0, static_cast<std::size_t>(std::min(number, 40)));
  std::mt19937 random(static_cast<unsigned>(number));
  if (number > 40) stored.resize(40);
  for (char& c : stored) c = number > 40 ? static_cast<char>(random() % 256) : c;
  load(stored);
  EXPECT_EQ(form.Combo8.index, form.Combo13.index);
  if (number <= 40) {
    EXPECT_EQ(form.Combo8.index, number >= 18 ? 5 : form.Combo8.index.get());
    EXPECT_EQ(form.Combo7.text, number == 0 ? " " : saved.substr(0, number == 1 ? 1 : 2));
  }
  EXPECT_EQ(form.Check1.value + form.Check2.value + form.Check3.value, 1);
  EXPECT_EQ(shown().substr(shown().size() - 3).find('1') + 1, state.modeAffichageFC);
  EXPECT_GE(form.Combo8.index, 0);
  EXPECT_THAT(faults, testing::IsEmpty());
  EXPECT_EQ(*memory.files.at(figuresPath), stored);
}
INSTANTIATE_TEST_SUITE_P(Records, DamagedRecord, testing::Range(0, 120));

TEST_F(HeartRate, StartsBlankWhereTheFileCannotBeOpened) {
  memory.put(figuresPath, saved);
  disk.failFrom(Call::Open, 1);
  load();
  EXPECT_THAT(faults, ElementsAre(HasSubstr(figuresPath)));
  EXPECT_THAT(shown(), testing::StartsWith(" | | | |00"));
  EXPECT_EQ(*memory.files.at(figuresPath), saved);
}

TEST_F(HeartRate, SavesTheScreenUnderTheRidersOwnMethod) {
  load(record("30 Masculin200060", "32") + "more");
  pick(form.Combo7, "41");
  form.Combo10.text = "Féminin";
  form.Combo11.text = "0189";
  form.Combo12.text = "055";
  form.Check3.value = 1;
  form.MyButton40.click();
  EXPECT_EQ(*memory.files.at(figuresPath), record("41 F\xE9minin 018055", "53") + "more");
  EXPECT_EQ(calculator.figures().persoFCMax, "018");
  EXPECT_EQ(form.Combo12.text, "55");
  EXPECT_EQ(form.Combo8.index, 5);
  // The box over the grid still shows the old method, and is the one that counts.
  EXPECT_EQ(calculator.figures().methodeFC, 3);
}

TEST_F(HeartRate, KeepsEverythingWhenSavingAtTheClosingFails) {
  load(saved);
  form.MyButton25.click();
  form.Combo10.text = "Masculin";  // on its own no reason to ask
  form.Command2.click();
  EXPECT_FALSE(form.Picture8.visible);
  form.MyButton25.click();
  form.Combo11.text = "195";
  disk.failFrom(Call::Write, 1);
  dialogs.next = {Answer::Yes, Answer::Yes};
  EXPECT_THROW(form.Command2.click(), platform::FileFault);
  EXPECT_EQ(calculator.figures().persoFCMax, "190");
  EXPECT_EQ(form.Combo11.text, "195");
  EXPECT_TRUE(form.Picture8.visible && form.Timer10.enabled);
  disk.heal();
  form.Command2.click();
  EXPECT_EQ(memory.files.at(figuresPath)->substr(11, 3), "195");
  EXPECT_FALSE(form.Picture8.visible || form.Timer10.enabled);
  EXPECT_EQ(dialogs.messages.size(), 2U);
}

TEST_F(HeartRate, AsksForWhatTheMethodNeeds) {
  load();
  for (const auto& [methode, age, fcMax, rest, asked] :
       {std::tuple{0, " ", "", "", "au moins un (Age)...\nCe Paramètre vous"},
        {3, "40", "", "", nullptr},
        {4, " ", "", "60", "Persos,vous devez Choisir un (Age), puis une (FCRepos).\nCes"},
        {4, "40", "", " ", "un (Age), puis une (FCRepos).\nCes Paramètres vous"},
        {4, "40", "", "60", nullptr},
        {5, "40", " ", "60", "(Age), puis une (FCMaxi), puis une (FCRepos).\nCes"},
        {5, "40", "190", " ", "(Age), puis une (FCMaxi), puis une (FCRepos).\nCes"},
        {5, "40", "190", "60", nullptr}}) {
    form.Combo7.text = age;
    form.Combo11.text = fcMax;
    form.Combo12.text = rest;
    for (const bool byMethod : {true, false}) {
      dialogs.messages.clear();
      form.Picture8.visible = false;
      byMethod ? form.Combo8.pick(methode) : form.MyButton38.click();
      EXPECT_EQ(form.Picture8.visible, asked != nullptr);
      // After a failed check, too, so that the rider can enter what is missing.
      EXPECT_EQ(form.Combo12.visible, methode >= 4) << methode;
      ASSERT_EQ(dialogs.messages.size(), asked != nullptr ? 1U : 0U) << methode << age;
      if (asked == nullptr) continue;
      EXPECT_THAT(dialogs.messages.front().text, HasSubstr(asked));
    }
  }
}

TEST_F(HeartRate, ShowsTheResultsAndTheBoxesOfTheMethod) {
  load();
  pick(form.Combo7, "40");
  EXPECT_EQ(form.Combo11.text, "180");
  EXPECT_EQ(form.Label53.caption, "108 à 126");
  EXPECT_EQ(state.heartZones[2].from, 108);
  EXPECT_EQ(state.heartZones[2].to, 126);
  form.Combo7.text = "4O";  // no number: the box keeps its text and the labels follow it
  form.Combo12.text = "60";
  form.MyButton38.click();
  EXPECT_EQ(form.Combo11.text, "180");
  EXPECT_EQ(form.Label56.caption, "120");
  form.Combo7.text = "40";
  const auto boxes = [this](int methode) {
    form.Combo8.index = methode;
    return std::vector<bool>{form.Combo7.visible, form.Combo10.visible, form.Combo11.visible,
                             form.Combo12.visible, form.Label62.visible};
  };
  EXPECT_THAT(boxes(1), ElementsAre(true, false, false, false, true));
  EXPECT_EQ(form.Combo11.text, "178");
  EXPECT_THAT(boxes(4), ElementsAre(false, false, false, true, false));
  EXPECT_EQ(form.Combo11.text, "240");
  EXPECT_EQ(form.Label50.caption, "168 à 186");
  EXPECT_THAT(boxes(5), ElementsAre(true, true, true, true, true));
  pick(form.Combo11, "200");
  EXPECT_EQ(form.Label57.caption, "200");
  form.Label57.caption = "as it was";
  pick(form.Combo7, "41");  // on the last two methods an age alone computes nothing
  EXPECT_EQ(form.Label57.caption, "as it was");
}

TEST_F(HeartRate, CompletesAPickedPercentage) {
  load(record("30 Masculin190050", "01"));
  fillGrid({"000"});
  for (const auto& [methode, age, rest, picked, cell, messages] :
       {std::tuple{0, "40", "60", "75 %", "135-75 %", 0U},
        {0, "40", "60", "50 %", "90-50 %", 0},
        {1, "40", "60", "75 %", "139-75 %", 0},
        {4, "40", "60", "80 %", "188-80 %", 0},
        {5, "40", "60", "100 %", "190-100 %", 0},
        {0, "40", " ", "75 %", " ", 1},
        {2, " ", "60", "75 %", " ", 1},
        {5, " ", "60", "75 %", " ", 1},
        {0, " ", " ", " ", " ", 0},
        {0, "4O", "60", "75 %", "75 %", 0}}) {
    form.Combo7.text = "40";
    form.Combo12.text = "60";
    form.Combo13.index = methode;
    form.Combo7.text = age;
    form.Combo12.text = rest;
    form.ListView1.setText(2, model::column::heartRate, picked);
    dialogs.messages.clear();
    form.Picture8.visible = false;
    calculator.viserCellule(2, picked);
    EXPECT_EQ(target(2), cell) << methode << age << rest;
    EXPECT_EQ(dialogs.messages.size(), messages) << methode << age << rest;
    EXPECT_EQ(form.Picture8.visible, messages == 1);
    if (messages == 0) continue;
    EXPECT_THAT(dialogs.messages.front().text,
                HasSubstr(methode == 2 ? "au moins un (Age)" : "une (FCMaxi)"));
  }
  form.Combo7.text = "40";
  form.Combo11.text = " ";
  calculator.viserCellule(2, "75 %");
  EXPECT_EQ(target(2), " ");
}

TEST_F(HeartRate, RewritesTheColumnForAnotherMethod) {
  load(record("40 Masculin190050", "01"));
  fillGrid({"000", "75 %", "1-75 %", "-----", "132- 80 %", "132-100 %", " ", "132X90 %", "7-", "9-5 %"});
  form.Combo7.text = "20";  // the saved age counts
  form.Combo13.index = 3;
  std::vector<std::string> targets;
  for (int row = 1; row <= form.ListView1.rowCount(); ++row) targets.push_back(target(row));
  EXPECT_THAT(targets, ElementsAre("Fréq./Card.", "000", "134- 75 %", "134- 75 %", "-----", "143- 80 %",
                                   "179-100 %", " ", "161- 90 %", "161- 90 %", "9-5 %"));
  form.Combo13.index = 5;
  EXPECT_EQ(target(7), "190-100 %");
  EXPECT_EQ(target(11), "57-5 %");
  form.Combo7.text = " ";
  form.Combo13.index = 0;
  EXPECT_EQ(target(7), "190-100 %");
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_THAT(dialogs.messages.front().text, HasSubstr("au moins un (Age)"));
  EXPECT_TRUE(form.Picture8.visible);
}

TEST_F(HeartRate, OpensOverTheGridAndEndsItsEditing) {
  load();
  int ended = 0;
  form.Command1.click.handle([&] { ++ended; });
  form.Combo1.visible = form.Combo13.visible = true;
  form.MyButton25.click();
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(form.Combo1.visible || form.Combo13.visible);
  EXPECT_EQ(form.Picture8.top, 360);
  form.maximised = true;
  form.MyFrame2.width = 15000;
  form.Picture8.width = 9000;
  form.MyButton25.click();
  EXPECT_EQ(form.Picture8.left, 3000);
}

TEST_F(HeartRate, ComputesNothingWithoutAMethodAndAnAge) {
  load();
  form.Combo8.type("none of the list");
  form.MyButton38.click();
  EXPECT_THAT(dialogs.messages, testing::IsEmpty());
  EXPECT_EQ(form.Label50.caption, "");
  form.Combo8.click();  // falls back on what is saved
  EXPECT_EQ(form.Combo8.index, 0);
}

TEST_F(HeartRate, OffersToSaveOnlyWhatDiffersOnTheLastMethod) {
  load(saved);
  form.MyButton25.click();
  const auto offered = [this] {
    advance(600);
    return std::pair{form.MyButton40.visible.get(), form.MyButton38.visible.get()};
  };
  const std::tuple<platform::ComboBox*, const char*, const char*> boxes[] = {
      {&form.Combo7, "41", "40"},
      {&form.Combo10, "Masculin", "Féminin"},
      {&form.Combo11, "191", "190"},
      {&form.Combo12, "51", " 050 "}};
  bool button38 = true;  // stays hidden once the screen has been like the file
  for (const auto& [box, other, same] : boxes) {
    box->text = other;
    EXPECT_EQ(offered(), std::pair(true, button38)) << other;
    box->text = same;
    EXPECT_EQ(offered(), std::pair(false, false)) << same;
    button38 = false;
  }
  form.Combo10.text = "Masculin";
  form.Check1.value = 0;
  EXPECT_EQ(offered(), std::pair(true, false));
  EXPECT_EQ(form.Check1.value, 1);
  form.Combo8.index = 1;
  EXPECT_EQ(offered(), std::pair(false, false));
}

TEST_F(HeartRate, ShowsAHelpTextOrThePictureNeverBoth) {
  load();
  const std::pair<const char*, std::function<void()>> waysBack[] = {
      {"ground", [this] { form.Picture8.hover(); }},
      {"picture", [this] { form.Image10.hover(); }},
      {"reopened", [this] { form.Command2.click(), form.MyButton25.click(); }},
      {"failed check", [this] { form.MyButton38.click(); }}};
  form.MyButton25.click();
  for (const auto& [way, back] : waysBack) {
    form.MyButton26.click();
    EXPECT_TRUE(form.Label47.visible && form.Shape2.visible && !form.Image11.visible) << way;
    EXPECT_THAT(form.Label44.caption.get(), HasSubstr("FCMax"));
    back();
    EXPECT_TRUE(form.Image11.visible && !form.Label47.visible && !form.Shape2.visible) << way;
    EXPECT_EQ(form.Label44.caption, "") << way;
  }
  form.MyButton29.hover();
  EXPECT_THAT(form.Label44.caption.get(), HasSubstr("moyenne (bpm)"));
}

}  // namespace
