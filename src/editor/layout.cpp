#include "editor/layout.h"

#include "forms/creer_cycle_words.h"
#include "model/grid_rows.h"

namespace editor {
namespace {

constexpr int gridWidth = 14565;    // twips
constexpr int gridHeight = 4090;    // twips
constexpr int largeurExtra = 2600;  // twips that the maximised list adds to the grid and the session column

int extraWidth(const forms::CreerCycle& form) {
  return form.maximised ? largeurExtra : 0;
}

}  // namespace

void recalerColonnes(forms::CreerCycle& form) {
  const auto columns = model::gridColumns(forms::cycleMode(form));
  for (int c = 1; c <= form.ListView1.columnCount(); ++c) {
    const bool session = c == model::column::sessionName;
    form.ListView1.setColumnWidth(c, session ? model::sessionColumnWidth + extraWidth(form)
                                             : columns[static_cast<std::size_t>(c - 1)].width);
  }
}

std::array<platform::Property<std::string>*, 5> listCaptions(forms::Screens& screens) {
  forms::CreerCycle& editor = screens.editor;
  return {&editor.Label8.caption, &editor.Label9.caption, &screens.main.MyFrame1.caption,
          &editor.MyButton3.caption, &editor.MyButton4.caption};
}

void styleRow(platform::Grid& grid, int row) {
  using namespace model;
  if (row == 1) {
    grid.setStyle(row, column::cycleName, column::duration, row_style::firstRow);
  } else {
    grid.setStyle(row, column::sessionName, column::deleteMark, row_style::finished);
  }
}

void sizeGrid(forms::CreerCycle& form) {
  form.ListView1.width = gridWidth + extraWidth(form);
  if (!form.maximised) form.ListView1.height = gridHeight;
  form.ListView1.setColumnWidth(model::column::sessionName, model::sessionColumnWidth + extraWidth(form));
}

}  // namespace editor
