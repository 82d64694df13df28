#include "rehearsal/session_ride.h"

#include "model/grid_rows.h"
#include "model/session_file.h"
#include "platform/fault.h"
#include "platform/form.h"
#include "rehearsal/memory_file_system.h"

namespace rehearsal {
namespace {

void copyInto(MemoryFileSystem& memory, platform::FileSystem& files, const std::string& path) {
  const auto file = files.open(path, platform::OpenMode::Read);
  std::string bytes(static_cast<std::size_t>(file->size()), '\0');
  bytes.resize(file->readAt(0, bytes));
  memory.put(path, std::move(bytes));
}

long long secondsOf(const platform::Grid& list) {
  long long sum = 0;
  for (int row = 2; row <= list.rowCount(); ++row) {
    if (model::isRidden(list, row))
      sum += model::parseSeconds(list.text(row, model::column::duration)).value_or(0);
  }
  return sum;
}

}  // namespace

model::RideOrder orderOf(platform::FileSystem& files, const std::string& session) {
  MemoryFileSystem memory;
  copyInto(memory, files, session);
  const bool present = model::lireEnTete(memory, session).present();
  const std::string readable = present ? session : model::convertirAncien(memory, session);
  platform::Form form("Session");
  platform::Grid list(form, "List");
  for (platform::GridColumn& column : model::gridColumns(false)) list.addColumn(std::move(column));
  list.addRow(model::firstRow());
  model::ajouterSeance(memory, readable, list);
  list.setText(1, model::column::duration, model::formatSeconds(secondsOf(list)));
  return model::rideOrder(list);
}

std::optional<model::Settings> settingsIn(platform::FileSystem& files, const std::string& folder) {
  const std::string path = folder + "/par.tq3";
  return files.exists(path) ? model::readSettings(files, path) : std::nullopt;
}

}  // namespace rehearsal
