#include <gmock/gmock.h>

#include "forms/creer_cycle.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "model/settings_file.h"
#include "rehearsal/memory_file_system.h"

namespace {

using namespace model;
using rehearsal::MemoryFileSystem;
using testing::ElementsAre;

std::string padded(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string record(const std::string& nbEnreg, const std::string& kind, const std::string& cadence,
                   const std::string& repeat, const std::string& times, const std::string& duration,
                   const std::string& announcement, const std::string& target) {
  return padded(nbEnreg, 15) + padded(kind, 15) + padded(cadence, 15) + padded("53", 13) + padded("17", 13) +
         padded(repeat, 3) + padded(times, 2) + padded(duration, 8) + padded(announcement, 50) +
         padded(target, 11) + padded("", 5);
}

std::string header(int count, const std::string& times) {
  std::string text = record(std::to_string(count), "", "", "Non", times, "", "ver2", "");
  text.replace(45, 26, std::string(26, ' '));
  return text;
}

class SessionFile : public testing::Test {
 protected:
  SessionFile() {
    for (auto& column : gridColumns(false)) grid_.addColumn(column);
    grid_.addRow(firstRow());
  }
  void put(const std::string& bytes) { files_.put(path_, bytes); }
  std::vector<std::string> column(int number) const {
    std::vector<std::string> texts;
    for (int row = 2; row <= grid_.rowCount(); ++row) texts.push_back(grid_.text(row, number));
    return texts;
  }

  MemoryFileSystem files_;
  forms::CreerCycle form_;
  platform::Grid& grid_ = form_.ListView1;
  std::string path_ = "/d/Col.du.matin.tq2";
  std::string warmUp_ = record("", "Echauffement", "80 \xE0 85", "", "", "00:10:00", "-----", "000");
  std::string force_ = record("", "Force 3", "60", "", "", "00:05:30", "-----", "132-75 %");
};

TEST_F(SessionFile, WritesEveryByteAndTheHeaderLast) {
  grid_.addRow(loadedRow(2, "Matin (1/2)", {"Echauffement", "80 à 85", "53", "17", "00:10:00", "", "000"}));
  grid_.addRow(closingRow(3, "-----Répète--(2)"));
  grid_.addRow(loadedRow(4, "Matin (2/2)", {"Force 3", "60", "53", "17", "00:05:30", "", "132-75 %"}));
  grid_.addRow(handMadeRow(5, "-----"));
  ecrireSeance(files_, path_, grid_);
  EXPECT_EQ(*files_.files.at(path_), header(3, "0") + warmUp_ + force_);
}

TEST_F(SessionFile, OverwritesInPlaceAndCutsLongValues) {
  put(std::string(1500, 'z'));
  const std::string longName(60, 'n');
  grid_.addRow(loadedRow(2, "x", {"Augmentation Progressive", "日本", "53", "17", "00:00:01", "", "000"}));
  grid_.addRow(loadedRow(3, "x", {"Annonce Vocale", "-----", "53", "17", "-----", longName, "-----"}));
  ecrireSeance(files_, path_, grid_);
  const std::string bytes = *files_.files.at(path_);
  ASSERT_EQ(bytes.size(), 1500U);
  EXPECT_EQ(bytes.substr(150 + 15, 30), padded("Augmentation Pr", 15) + padded("??", 15));
  EXPECT_EQ(bytes.substr(300 + 84, 50), std::string(50, 'n'));
  EXPECT_EQ(bytes.substr(450), std::string(1050, 'z'));
  grid_.clearRows();
  ajouterSeance(files_, path_, grid_);
  EXPECT_THAT(column(column::sequence), ElementsAre("Annonce Vocale"));
}

TEST_F(SessionFile, RepeatsUnrollWithTheirClosingRows) {
  struct Case {
    const char* times;
    std::vector<std::string> names;
  };
  const std::string a = "Col (1/2)";
  const std::string b = "Col (2/2)";
  const std::string end = "----------------";
  const std::string second = "-----Répète--(2)";
  const std::string third = "-----Répète--(3)";
  for (const Case& c : std::initializer_list<Case>{{"0", {a, b}},
                                                   {"--", {a, b}},
                                                   {"-1", {a, b}},
                                                   {"1", {a, b, second, a, b, end}},
                                                   {"2", {a, b, second, a, b, end}},
                                                   {"3", {a, b, second, a, b, third, a, b, end}}}) {
    grid_.clearRows();
    grid_.addRow(firstRow());
    grid_.addRow(handMadeRow(2, "-----"));
    put(header(3, c.times) + warmUp_ + force_);
    ajouterSeance(files_, path_, grid_);
    EXPECT_EQ(column(column::sessionName), c.names) << c.times;
    EXPECT_EQ(grid_.text(2, column::number), "2") << "the blank row's number is used again";
  }
  EXPECT_EQ(grid_.text(2, column::cadence), "80 à 85");
  EXPECT_EQ(grid_.text(2, column::announcement), "-----");
}

TEST_F(SessionFile, ACountBeyondTheFileGivesEmptyRowsAndDamageIsRefused) {
  put(header(4, "0") + warmUp_);
  ajouterSeance(files_, path_, grid_);
  EXPECT_THAT(column(column::duration), ElementsAre("00:10:00", "", ""));
  const int before = grid_.rowCount();
  for (const char* count : {"999999999999999", "32768"}) {
    put(padded(count, 15) + header(1, "0").substr(15));
    EXPECT_THROW(ajouterSeance(files_, path_, grid_), platform::Fault) << count;
  }
  put(padded("20000", 15) + header(1, "99").substr(15));
  EXPECT_THROW(ajouterSeance(files_, path_, grid_), platform::Fault);
  EXPECT_EQ(grid_.rowCount(), before);
  ajouterSeance(files_, "/d/sans point", grid_);
  EXPECT_EQ(grid_.rowCount(), before);
}

TEST_F(SessionFile, TheLongestListIsReadAgainAndAnyLongerIsNotWritten) {
  put(header(1441, "20"));
  ajouterSeance(files_, path_, grid_);
  EXPECT_EQ(grid_.rowCount(), 1 + 20 * 1441);
  EXPECT_THROW(ajouterSeance(files_, path_, grid_), platform::Fault) << "a list is no longer by two files";
  ecrireSeance(files_, path_, grid_);
  const std::string written = *files_.files.at(path_);
  grid_.setText(1, column::times, "2");
  EXPECT_THROW(ecrireSeance(files_, path_, grid_), platform::Fault);
  EXPECT_EQ(*files_.files.at(path_), written);
  grid_.clearRows();
  EXPECT_EQ(ajouterSeance(files_, path_, grid_).announced, 28800);
  for (const auto& [count, times] : {std::pair{1442, "20"}, {28802, "0"}, {14402, "1"}}) {
    grid_.clearRows();
    put(header(count, times));
    EXPECT_THROW(ajouterSeance(files_, path_, grid_), platform::Fault) << count;
    put(header(count, times).substr(0, 84));
    EXPECT_THROW((void)convertirAncien(files_, path_), platform::Fault) << count;
    EXPECT_EQ(grid_.rowCount(), 0);
  }
}

TEST_F(SessionFile, AnOldFileIsConvertedInPlace) {
  const auto old = [](const std::string& text) { return text.substr(0, 84); };
  std::string oldHeader = old(header(3, "2"));
  put(oldHeader + old(warmUp_) + old(force_));
  ASSERT_FALSE(lireEnTete(files_, path_).present());
  EXPECT_EQ(convertirAncien(files_, path_), path_);
  const std::string blanks(66, ' ');
  EXPECT_EQ(*files_.files.at(path_), header(3, "2") + old(warmUp_) + blanks + old(force_) + blanks);
  EXPECT_EQ(files_.list("/d").size(), 1U);

  files_.put("/d/Vieux.old", oldHeader + old(warmUp_) + old(force_));
  EXPECT_EQ(convertirAncien(files_, "/d/Vieux.old"), "/d/Vieux.tq2");
  EXPECT_FALSE(files_.exists("/d/Vieux.old"));

  files_.put("/d/Vieux.old", oldHeader);
  EXPECT_THROW((void)convertirAncien(files_, "/d/Vieux.old"), platform::FileFault)
      << "never over another session";
  EXPECT_TRUE(files_.exists("/d/Vieux.old"));
}

TEST(SettingsFile, KnowsDamageByTheCharacter) {
  MemoryFileSystem files;
  const auto read = [&](const std::string& bytes) {
    files.put("/p", bytes);
    return readSettings(files, "/p");
  };
  const std::string good = "01010000101116 1" + std::string(14, ' ');
  ASSERT_TRUE(read(good));
  EXPECT_EQ(read(good)->countdown, "16");
  EXPECT_EQ(read(good)->boxes.at(12), 0);
  struct Case {
    std::size_t at;
    char byte;
    bool valid;
  };
  for (const Case& c : std::initializer_list<Case>{{0, '9', false},
                                                   {11, '2', false},
                                                   {5, 'A', true},
                                                   {12, 'A', false},
                                                   {12, ' ', true},
                                                   {12, '9', true},
                                                   {12, '\xE9', false},
                                                   {14, '2', true}}) {
    std::string bytes = good;
    bytes[c.at] = c.byte;
    EXPECT_EQ(read(bytes).has_value(), c.valid) << c.at << c.byte;
  }
  for (std::size_t size = 0; size < good.size(); ++size) EXPECT_TRUE(read(good.substr(0, size))) << size;
  EXPECT_THAT(files.calls, testing::Each(testing::StartsWith("read ")))
      << "protected settings are settings, too";
}

TEST(SettingsFile, WritesThirtyBytes) {
  MemoryFileSystem files;
  writeSettings(files, "/p", {{0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 1, 1, 1}, "2 "});
  EXPECT_EQ(*files.files.at("/p"), "0101000010112 1" + std::string(15, ' '));
}

}  // namespace
