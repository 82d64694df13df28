#include "heartrate/target_column.h"

#include "heartrate/input_checks.h"
#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/training_model.h"
#include "platform/each_on_its_own.h"
#include "platform/text.h"

namespace heartrate {
namespace {

constexpr std::size_t percentSign = 2;  // characters: " %" at the end of a picked text

bool hasTarget(const std::string& cell) {
  const std::string text = platform::trim(cell);
  return !text.empty() && text != model::noTarget && text != model::noMeaning;
}

}  // namespace

TargetColumn::TargetColumn(const context::Context& context, Figures& figures)
    : context_(context), editor_(context.screens.editor), figures_(figures) {
  editor_.Combo13.click.handle([this] { choisirMethode(); });
}

TargetOperands TargetColumn::operands() const {
  return {editor_.Combo7.text.get(), editor_.Combo12.text.get(), figures_.persoAge.get(),
          figures_.persoFCMax.get(), figures_.persoFCRepos.get()};
}

void TargetColumn::choisirMethode() {
  const int picked = editor_.Combo13.index;
  if (picked >= 0) figures_.methodeFC = picked;
  recalculerColonneFC();
}

void TargetColumn::viserCellule(int row, const std::string& pickedText) {
  const auto write = [&](const std::string& text) {
    editor_.ListView1.setText(row, model::column::heartRate, text);
  };
  const auto refuse = [&](Needed needed) {
    showNeededFigures(context_.outside.dialogs, needed);
    write(std::string(model::emptyCell));
    editor_.MyButton25.click();
  };
  const std::string picked = platform::trim(pickedText);
  if (picked.empty() || picked == model::noMeaning) return write(std::string(model::emptyCell));
  write(picked);

  const int methode = editor_.Combo13.index;
  if (byAge(methode) && isBlank(editor_.Combo7)) return refuse(Needed::Age);
  // Stricter than the age methods need: they, too, refuse a pick while the resting rate is blank.
  if ((byReserve(methode) && isBlank(editor_.Combo7)) || isBlank(editor_.Combo11) ||
      isBlank(editor_.Combo12)) {
    return refuse(Needed::AllFigures);
  }
  platform::eachOnItsOwn([&] {
    const std::size_t size = platform::length(picked);
    const double percent =
        model::strictNumber(platform::left(picked, size > percentSign ? size - percentSign : 0));
    const auto target = cibleFC(TargetWriter::CellPick, figures_.methodeFC, percent, operands());
    if (target) write(model::formatBpm(*target) + "-" + picked);
  });
}

void TargetColumn::recalculerColonneFC() {
  if (figures_.loading()) return;
  if (isBlank(editor_.Combo7)) {
    showNeededFigures(context_.outside.dialogs,
                      byReserve(figures_.methodeFC) ? Needed::AllFigures : Needed::Age);
    editor_.MyButton25.click();
    return;
  }
  platform::Grid& grid = editor_.ListView1;
  // A cell without a hyphen is cut where the row before it had one.
  std::size_t hyphen = 0;
  double percent = 0;
  for (int row = 2; row <= grid.rowCount(); ++row) {
    const std::string cell = grid.text(row, model::column::heartRate);
    if (!hasTarget(cell)) continue;
    const std::size_t size = platform::length(cell);
    const std::size_t last = cell.rfind('-');
    if (last != std::string::npos) hyphen = platform::length(cell.substr(0, last + 1));
    // A cut behind the cell's end fails, and leaves the percentage of the row before.
    if (hyphen < size) percent = model::lenientNumber(platform::mid(cell, hyphen + 1, size - 1 - hyphen));
    platform::eachOnItsOwn([&] {
      const auto target = cibleFC(TargetWriter::ColumnRewrite, figures_.methodeFC, percent, operands());
      if (!target) return;
      const std::string written = model::plainNumber(percent);
      grid.setText(
          row, model::column::heartRate,
          model::formatBpm(*target) + (platform::length(written) == 2 ? "- " : "-") + written + " %");
    });
  }
}

}  // namespace heartrate
