#include "model/session_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/record.h"
#include "model/vocabulary.h"
#include "platform/each_on_its_own.h"
#include "platform/fault.h"
#include "platform/text.h"
#include "platform/whole_file.h"

namespace model {
namespace {

// A record's fields; the predecessor's records have the first eight.
namespace field {
constexpr Field nbEnreg{"nbEnreg", 0, 15};
constexpr Field sequence{"sequence", 15, 15};
constexpr Field cadence{"cadence", 30, 15};
constexpr Field plateau{"plateau", 45, 13};
constexpr Field braquet{"braquet", 58, 13};
constexpr Field repeter{"repeter", 71, 3};
constexpr Field fois{"fois", 74, 2};
constexpr Field duree{"duree", 76, 8};
constexpr Field annonce{"annonce", 84, 50};
constexpr Field freqCard{"freqCard", 134, 11};
constexpr Field reserve{"reserve", 145, 5};
}  // namespace field

constexpr std::array fields{field::nbEnreg, field::sequence, field::cadence, field::plateau,
                            field::braquet, field::repeter,  field::fois,    field::duree,
                            field::annonce, field::freqCard, field::reserve};
constexpr std::size_t oldFieldCount = 8;
constexpr std::size_t recordWidth = 150;
constexpr std::size_t oldRecordWidth = 84;
constexpr std::string_view versionTag = "ver2";
constexpr std::size_t extensionLength = 4;

// A whole day, which no total can express any more, of sequences of three seconds: no rider composes so many.
constexpr int mostRows = 28800;

// Which field holds the text of which column; the grid shows exactly what the file holds.
struct CellField {
  const Field& field;
  int column;
};
constexpr std::array<CellField, 7> cellFields{{{field::sequence, column::sequence},
                                               {field::cadence, column::cadence},
                                               {field::plateau, column::chainring},
                                               {field::braquet, column::gear},
                                               {field::duree, column::duration},
                                               {field::annonce, column::announcement},
                                               {field::freqCard, column::heartRate}}};

Record blankRecord() {
  Record record(recordWidth);
  record.blank(fields);
  return record;
}

SessionHeader headerOf(const Record& record) {
  return {lenientInteger(record.get(field::nbEnreg)), std::max(0, lenientInteger(record.get(field::fois))),
          record.trimmed(field::annonce)};
}

std::string withoutExtension(const std::string& path) {
  const std::size_t all = platform::length(path);
  return platform::left(path, all > extensionLength ? all - extensionLength : 0);
}

// The name of the work file of a conversion, as long as that of the old one: three blanks in place of an
// extension, so that withoutExtension() can cut them off again.
std::string workName(const std::string& path) {
  return withoutExtension(path) + ".   ";
}

// How often a session is ridden: a count of 1 gives two passes, too; only from 2 on it is the number of
// passes.
int passesOf(const SessionHeader& header) {
  return header.fois > 1 ? header.fois : header.fois + 1;
}

SequenceTexts textsOf(const Record& record) {
  const std::string sequence = record.trimmed(field::sequence);
  std::string announcement;  // of other rows nobody reads it
  if (sequence == vocalAnnouncement) announcement = record.get(field::annonce);
  if (announcement.find('\0') != std::string::npos) announcement = record.trimmed(field::annonce);
  return {sequence,
          record.trimmed(field::cadence),
          record.trimmed(field::plateau),
          record.trimmed(field::braquet),
          record.trimmed(field::duree),
          announcement,
          record.trimmed(field::freqCard)};
}

// Appends the file's sequences once, numbered in the session column. Returns how many were not blank.
int appendPass(platform::RandomFile& file, int nbEnreg, const std::string& name, platform::Grid& grid) {
  Record record(recordWidth);
  int found = 0;
  const std::string total = '/' + std::to_string(nbEnreg - 1) + ')';
  for (int number = 2; number <= nbEnreg; ++number) {
    record.read(file, static_cast<std::uint64_t>(number));
    std::string place = name;
    place.append(" (").append(std::to_string(number - 1)).append(total);
    SequenceTexts texts = textsOf(record);
    if (!texts.sequence.empty() || !texts.duration.empty()) ++found;
    grid.addRow(loadedRow(grid.rowCount() + 1, place, std::move(texts)));
    grid.setStyle(grid.rowCount(), column::sessionName, column::deleteMark, row_style::finished);
  }
  return found;
}

int sequencesOf(const SessionHeader& header) {
  return std::max(1, header.nbEnreg) - 1;
}

int sequencesIn(const platform::Grid& grid) {
  int count = 0;
  for (int row = 2; row <= grid.rowCount(); ++row) count += isSequence(grid, row) ? 1 : 0;
  return count;
}

void refuseDamage(const SessionHeader& header, const std::string& path) {
  if (sequencesOf(header) <= mostRows / passesOf(header)) return;
  throw platform::Fault("Le fichier « " + path + " » est endommagé : il annonce " +
                        std::to_string(header.nbEnreg) + " enregistrements, à parcourir " +
                        std::to_string(passesOf(header)) + " fois.");
}

// What is written can be read again, so no list comes to hold, and no file to ask for, more than a reader
// takes.
void refuseTooLong(int sequences, int passes) {
  if (sequences <= mostRows / passes) return;
  throw platform::Fault("La liste serait trop longue : " + std::to_string(sequences) +
                        " séquences, à parcourir " + std::to_string(passes) + " fois ; une liste en a " +
                        std::to_string(mostRows) + " au plus.");
}

}  // namespace

void requireRoom(const platform::Grid& grille, int more) {
  const SessionHeader header{0, lenientInteger(grille.text(1, column::times)), {}};
  refuseTooLong(sequencesIn(grille) + more, passesOf(header));
}

void ecrireSeance(platform::FileSystem& files, const std::string& chemin, const platform::Grid& grille) {
  platform::WholeFile file(files, chemin, platform::WholeFile::Start::OldBytes);
  writeSession(file, grille);
  file.commit();
}

void writeSession(platform::RandomFile& file, const platform::Grid& grille) {
  Record header = blankRecord();
  header.set(field::repeter, grille.text(1, column::repeat));
  header.set(field::fois, grille.text(1, column::times));
  header.set(field::annonce, versionTag);
  refuseTooLong(sequencesIn(grille), passesOf(headerOf(header)));
  int counter = 1;
  for (int row = 2; row <= grille.rowCount(); ++row) {
    if (!isSequence(grille, row)) continue;
    Record record = blankRecord();
    for (const CellField& cell : cellFields) record.set(cell.field, grille.text(row, cell.column));
    ++counter;
    record.write(file, static_cast<std::uint64_t>(counter));
  }
  header.set(field::nbEnreg, std::to_string(counter));
  header.write(file, 1);
}

std::uint64_t sizeOfSession(const SessionHeader& header) {
  return static_cast<std::uint64_t>(std::max(1, header.nbEnreg)) * recordWidth;
}

SessionHeader lireEnTete(platform::FileSystem& files, const std::string& chemin) {
  const auto file = files.open(chemin, platform::OpenMode::Read);
  Record record(recordWidth);
  record.read(*file, 1);
  return headerOf(record);
}

std::string convertirAncien(platform::FileSystem& files, const std::string& chemin) {
  std::string target = withoutExtension(workName(chemin)) + ".tq2";
  if (target != chemin && files.exists(target)) {
    throw platform::FileFault("de convertir vers", target, "ce fichier existe déjà");
  }
  const auto old = files.open(chemin, platform::OpenMode::Read);
  Record before(oldRecordWidth);
  before.read(*old, 1);
  const SessionHeader header = headerOf(before);
  refuseDamage(header, chemin);
  const std::string work = workName(files.targetOf(target));
  if (files.exists(work)) files.remove(work);
  platform::WholeFile fresh(files, target, platform::WholeFile::Start::Empty, work);
  for (int number = 1; number <= header.nbEnreg; ++number) {
    before.read(*old, static_cast<std::uint64_t>(number));
    Record after = blankRecord();
    for (std::size_t i = 0; i < oldFieldCount; ++i) after.set(fields.at(i), before.get(fields.at(i)));
    if (number == 1) after.set(field::annonce, versionTag);
    after.write(fresh, static_cast<std::uint64_t>(number));
  }
  fresh.commit();
  if (target != chemin) files.remove(chemin);
  return target;
}

void supprimerRestes(platform::FileSystem& files, const std::string& dossier) {
  platform::removeLeftovers(files, dossier);
  platform::eachOnItsOwn([&] {
    const std::vector<std::string> names = files.list(dossier);
    for (const std::string& name : names) {
      const bool old = std::any_of(names.begin(), names.end(), [&](const std::string& other) {
        return other != name && workName(other) == name;
      });
      if (old) platform::eachOnItsOwn([&] { files.remove(dossier + name); });
    }
  });
}

FoundSequences ajouterSeance(platform::FileSystem& files, const std::string& chemin, platform::Grid& grille) {
  const std::optional<std::string> name = sessionName(chemin);
  if (!name) return {};
  const auto file = files.open(chemin, platform::OpenMode::Read);
  Record record(recordWidth);
  record.read(*file, 1);
  const SessionHeader header = headerOf(record);
  const int repeats = passesOf(header) - 1;
  refuseDamage(header, chemin);
  refuseTooLong(sequencesIn(grille) + sequencesOf(header) * (repeats + 1), 1);
  // Never the first row, although its total can look like a duration not chosen yet.
  if (grille.rowCount() > 1 && lastRowUnfinished(grille)) grille.removeRow(grille.rowCount());
  FoundSequences sequences{std::max(0, header.nbEnreg - 1), 0};
  for (int pass = 1; pass <= repeats + 1; ++pass) {
    sequences.found = appendPass(*file, header.nbEnreg, *name, grille);
    if (repeats == 0) continue;
    const std::string announced = "-----Répète--(" + std::to_string(pass + 1) + ")";
    grille.addRow(closingRow(grille.rowCount() + 1, pass <= repeats ? announced : std::string(endOfList)));
    grille.setStyle(grille.rowCount(), column::sessionName, column::deleteMark, row_style::finished);
  }
  return sequences;
}

std::optional<std::string> sessionName(const std::string& chemin) {
  const std::size_t slash = chemin.rfind('/');
  const std::string last = slash == std::string::npos ? chemin : chemin.substr(slash + 1);
  const std::size_t dot = last.find('.');
  if (dot == std::string::npos) return std::nullopt;
  return last.substr(0, dot);
}

}  // namespace model
