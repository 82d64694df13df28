#include "player/media_identification.h"

#include <gtest/gtest.h>

#include <optional>

#include "player/file_information.h"
#include "player/fourcc_table.h"
#include "player/medium.h"
#include "player/placement.h"
#include "support/rig.h"

namespace {

using namespace std::string_literals;

std::string at(std::string bytes, std::size_t position, const std::string& piece) {
  if (bytes.size() < position - 1 + piece.size()) bytes.resize(position - 1 + piece.size());
  return bytes.replace(position - 1, piece.size(), piece);
}

std::string word(int value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

std::string asf(int width, int height, const std::string& code, int header = 400) {
  std::string bytes = at("\x30\x26\xB2\x75"s, 17, word(header) + "\0\0"s);
  bytes = at(bytes, 200, word(width) + "\0\0"s + word(height));
  return at(bytes, 212, code);
}

TEST(MediaIdentification, ReadsTypeSizeAndCode) {
  const std::string avi = at(at(at("RIFF....AVI "s, 65, word(640)), 69, word(480)), 189, "DIVXz");
  const std::string mpg = at("\0\0\1\xBA"s, 30, "\0\0\1\xB3\x16\x01\x20"s);
  struct Row {
    std::string name;
    std::string bytes;
    std::string type;
    std::string info;
    std::string device = {};
  };
  const Row rows[] = {
      {"a.avi", avi, "avi", "DIVX  [640x480]"},
      {"a.mp3", avi, "avi", "DIVX  [640x480]"},
      {"a.avi", avi.substr(0, 66), "avi", " [640x0]"},
      {"a.avi", "RIFF", "dat", "?     [1x1]"},
      {"a.avi", "MZ", "dat", "?     [1x1]"},
      {"a.mpg", mpg, "mpg", "MPEG  [352x288]"},
      {"a.mpg", "\0\0\1\xBA"s, "mpg", "MPEG  [4095x4095]"},
      {"a.mpg", at("\0\0\1\xBA"s, 30000, "\0\0\1\xB3\x16\x01\x20"s), "mpg", "MPEG  [352x288]"},
      {"a.mpg", at("\0\0\1\xBA"s, 30001, "\0\0\1\xB3\x16\x01\x20"s), "mpg", "MPEG  [4095x4095]"},
      {"a.mpg", "JUNK", "dat", "?     [320x200]", "0 0 320 200"},
      {"a.MPEG", "JUNK", "dat", "?     [1x1]", "0"},
      {"a.wmv", asf(600, 500, "WMV3x"), "wmv", "WMV3x [600x500]"},
      {"a.wmv", asf(900, 500, "MP43\0"s), "wmv", "MP43 [900x500]"},
      {"a.wmv", asf(595, 500, "WMV3x"), "wmv", " [0x0]"},
      {"a.wmv", asf(905, 500, "WMV3x"), "wmv", " [0x0]"},
      {"a.wmv", asf(600, 0, "WMV3x"), "wmv", " [0x0]"},
      {"a.wmv", asf(600, 500, "WMV3x", 211), "wmv", " [0x0]"},
      {"a.wmv", asf(600, 500, "WMV3x", 212), "wmv", "WMV3x [600x500]"},
      {"a.wmv", at(asf(1, 1, "x"), 17, "\xFF\xFF\xFF\xFF"), "wmv", " [12x34]", "0 0 12 34\0junk"s},
      {"a.mov", "x", "mov", "QTMOV [1x1]"},
      {"a.bin", "MThd", "mid", "AUDIO [1x1]"},
      {"a.rm", ".RMF", "ram", "?     [1x1]"},
      {"a.wav", "RIFF....WAVE", "wav", "AUDIO [1x1]"},
      {"a.dat", "RIFF....CDXA", "dat", "?     [1x1]"},
      {"a.Mp3", "", "mp3", "AUDIO [1x1]"},
      {"a.b/sans", "", "b/sans", "?     [1x1]"},
  };
  for (const Row& row : rows) {
    rehearsal::MemoryFileSystem disk;
    disk.put(row.name, row.bytes);
    SCOPED_TRACE(std::to_string(&row - rows) + " " + row.name);
    EXPECT_EQ(player::typeParContenu(disk, row.name), row.type);
    const auto found = player::identifierMedia(disk, row.name, [&] { return row.device; });
    EXPECT_EQ(found.infoMedia, row.info);
  }
}

TEST(MediaIdentification, KnowsPicturesByName) {
  for (const char* name : {"a.bmp", "b.c.JPEG", "/x/été.gif", "a.emf"})
    EXPECT_TRUE(player::ItIsAPic(name)) << name;
  for (const char* name : {"a.png", "bmp.", "a.bmp.mp3", ""}) EXPECT_FALSE(player::ItIsAPic(name)) << name;
}

TEST(FormatTemps, CutsToTheThousandth) {
  const std::pair<std::int64_t, const char*> rows[] = {{0, "0:00:00.000"},
                                                       {999, "0:00:00.999"},
                                                       {61005, "0:01:01.005"},
                                                       {3600000, "1:00:00.000"},
                                                       {360000001, "100:00:00.001"}};
  for (const auto& [time, text] : rows) EXPECT_EQ(player::formatTemps(time), text);
}

TEST(FileInformation, WritesSizesAndAttributes) {
  const std::pair<std::uint32_t, const char*> attributes[] = {{0, "None"},
                                                              {128, "N"},
                                                              {1, "R"},
                                                              {33, "AR"},
                                                              {63, "Erreur d'attribut"},
                                                              {16 + 2, "DH"},
                                                              {1024 + 512 + 256, "R-PS-FT"},
                                                              {8192 + 32, "A"},
                                                              {128 + 1, "Erreur d'attribut"},
                                                              {32768 + 16384 + 4096 + 2048 + 4, "LEOCS"}};
  for (const auto& [bits, text] : attributes) EXPECT_EQ(player::texteAttributs(bits), text) << bits;
  const std::pair<std::uint64_t, const char*> sizes[] = {
      {0, ""}, {7, "7"}, {999, "999"}, {1000, "1,000"}, {1234567890, "1,234,567,890"}};
  for (const auto& [bytes, text] : sizes) EXPECT_EQ(player::texteTaille(bytes), text);
  const auto program = player::informationFichier(player::programFile(), "1.2");
  EXPECT_TRUE(program.found);
  EXPECT_EQ(program.FileVersion, "1.2");
  EXPECT_EQ(program.writeTime.size(), std::string("31/12/2026 23:59:59").size());
  EXPECT_FALSE(player::informationFichier("/absent", "1.2").found);
}

TEST(Placement, FitsIntoTheBox) {
  const player::PictureSize rows[][3]{{{320, 240}, {333, 250}, {333, 249}},
                                      {{100, 400}, {333, 250}, {62, 250}},
                                      {{10, 10}, {30, 60}, {30, 30}}};
  for (const auto& [native, box, wanted] : rows) {
    const player::PictureSize size = player::fitted(native, box);
    EXPECT_EQ(std::pair(size.width, size.height), std::pair(wanted.width, wanted.height));
  }
}

TEST(FourccTable, TellsWhatACodeStandsFor) {
  rehearsal::MemoryFileSystem disk;
  support::RecordedDialogs said;
  player::FourccTable table(disk, said);
  table.chargerFourcc("/d/");
  table.montrerFourcc("DIV");
  table.montrerFourcc("DIVX");
  disk.put("/d/fourcc.txt", "1\r\n2\r\n3\r\nDIVXyz\r\nDivX \xE9t\xE9\r\nDivX Inc\r\nXVID\r\n");
  table.chargerFourcc("/d/");
  table.montrerFourcc("DIVX [640x480]");
  table.montrerFourcc("XVID");
  std::string all;
  for (const platform::Message& one : said.messages) all += one.title + "|" + one.text + "\n";
  EXPECT_EQ(all,
            "FourCC information|Code FOURCC inconnu.\n"
            "Information FourCC|Code : DIVX\nNom complet : DivX été\nCréateur : DivX Inc\n"
            "FourCC information|Code FOURCC inconnu.\n");
}

}  // namespace
