#include "player/fourcc_table.h"

#include <algorithm>

#include "model/windows1252.h"
#include "platform/text.h"

namespace player {
namespace {

constexpr std::size_t codeLength = 4;

std::vector<std::string> linesOf(platform::RandomFile& file) {
  std::string bytes(file.size(), '\0');
  bytes.resize(file.readAt(0, bytes));
  std::vector<std::string> lines = platform::split(model::fromWindows1252(bytes), '\n');
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  return lines;
}

}  // namespace

void FourccTable::chargerFourcc(const std::string& folder) {
  constexpr std::size_t preamble = 3;
  const std::string path = folder + "fourcc.txt";
  if (!files_.exists(path)) return;
  const std::vector<std::string> lines = linesOf(*files_.open(path, platform::OpenMode::Read));
  for (std::size_t at = preamble; at + 2 < lines.size(); at += 3) {
    records_.push_back({platform::left(lines[at], codeLength), lines[at + 1], lines[at + 2]});
  }
}

void FourccTable::montrerFourcc(const std::string& text) const {
  if (platform::length(text) < codeLength) return;
  const std::string code = platform::left(text, codeLength);
  const auto found = std::find_if(records_.begin(), records_.end(),
                                  [&](const Record& record) { return record.code == code; });
  if (found == records_.end()) {
    dialogs_.message({platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "FourCC information",
                      "Code FOURCC inconnu."});
    return;
  }
  dialogs_.message(
      {platform::MessageKind::Information, platform::MessageButtons::Ok, "Information FourCC",
       "Code : " + found->code + "\nNom complet : " + found->nomComplet + "\nCréateur : " + found->createur});
}

}  // namespace player
