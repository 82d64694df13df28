#include "model/personal_file.h"

#include <array>
#include <utility>

#include "model/record.h"
#include "platform/text.h"

namespace model {
namespace {

constexpr std::size_t personalWidth = 40;
constexpr Field unused{"reserve", 19, 21};
constexpr std::array<std::pair<Field, std::string PersonalFigures::*>, 6> figureFields{{
    {{"age", 0, 3}, &PersonalFigures::age},
    {{"sexe", 3, 8}, &PersonalFigures::sexe},
    {{"fcMax", 11, 3}, &PersonalFigures::fcMax},
    {{"fcRepos", 14, 3}, &PersonalFigures::fcRepos},
    {{"methode", 17, 1}, &PersonalFigures::methode},
    {{"modeAffichage", 18, 1}, &PersonalFigures::modeAffichage},
}};

}  // namespace

PersonalFigures readPersonal(platform::FileSystem& files, const std::string& path) {
  // An existing file is opened for reading alone, so that one without write permission can be read.
  using enum platform::OpenMode;
  const auto file = files.open(path, files.exists(path) ? Read : ReadWriteCreate);
  Record record(personalWidth);
  record.read(*file, 1);
  PersonalFigures figures;
  for (const auto& [field, member] : figureFields) {
    const std::string text = record.get(field);
    figures.*member = platform::trim(text.substr(0, text.find('\0')));
  }
  return figures;
}

void writePersonal(platform::FileSystem& files, const std::string& path, const PersonalFigures& figures) {
  Record record(personalWidth);
  for (const auto& [field, member] : figureFields) record.set(field, figures.*member);
  record.set(unused, "");
  record.store(files, path);
}

}  // namespace model
