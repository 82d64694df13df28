// A report-style list: rows of text cells with a colour and a bold flag each. Rows and columns count from 1.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/control.h"

namespace platform {

enum class Alignment { Left, Centre };
enum class MouseButton { Left, Right };

struct GridColumn {
  std::string header;
  int width = 0;  // twips; 0 hides the column, which keeps its cells
  Alignment alignment = Alignment::Left;
};

struct CellStyle {
  Colour colour;
  bool bold = false;
  bool operator==(const CellStyle&) const = default;
};

// What changed in a grid, for the fronts. A row of 0 stands for all rows, a column of 0 for all columns.
struct GridChange {
  enum class What {
    Columns,
    RowInserted,
    RowRemoved,
    Cleared,
    Text,
    Style,
    Checked,
    Selection,
    Reveal,
    Focus
  };
  What what;
  int row = 0;
  int column = 0;
};

class Grid final : public Control {
 public:
  using GridWatcher = std::function<void(const GridChange&)>;
  using Cells = std::vector<std::string>;

  Grid(Form& form, std::string name, const Design& design = {})
      : Control(form, ControlKind::Grid, std::move(name), design) {}

  // Columns.
  void clearColumns();
  void addColumn(GridColumn column);
  void setColumnWidth(int column, int twips);
  [[nodiscard]] int columnCount() const { return static_cast<int>(columns_.size()); }
  [[nodiscard]] const GridColumn& column(int column) const { return columns_[at(column)]; }
  // Twips from the list's left to the column's left edge.
  [[nodiscard]] int columnLeft(int column) const;

  // Rows.
  [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }
  void addRow(Cells cells);  // at the end; missing cells are empty
  void insertRow(int row, Cells cells);
  void removeRow(int row);
  void clearRows();

  // Cells. A place outside the grid reads as empty, and writing there does nothing.
  [[nodiscard]] const std::string& text(int row, int column) const;
  void setText(int row, int column, const std::string& text);
  // The cells of a row as they are now: a later change leaves them as they are. The row must exist.
  [[nodiscard]] std::shared_ptr<const Cells> cells(int row) const { return rows_[at(row)].cells; }
  [[nodiscard]] CellStyle style(int row, int column) const;
  void setStyle(int row, int firstColumn, int lastColumn, const CellStyle& style);
  // Check boxes, where the list has them. A tick by the rider is `tickRow`.
  [[nodiscard]] bool checked(int row) const;
  void setChecked(int row, bool on);
  void tickRow(int row, bool on);

  // The selected row, or 0 for none. It moves with its row when others are inserted or removed.
  [[nodiscard]] int selectedRow() const { return selected_; }
  void select(int row);  // this row alone
  // Where the rider has selected several rows, those are marked, and the selected row is the one of them, or
  // beside them, that he has in hand.
  [[nodiscard]] bool isSelected(int row) const;
  [[nodiscard]] std::vector<int> selectedRows() const;  // in their order
  // Whether the list is one of which several can be selected at all.
  [[nodiscard]] bool takesSeveral() const { return keyPressed.handled(); }
  [[nodiscard]] bool severalSelected() const { return marked_ > 0; }
  void selectRows(const std::vector<int>& rows, int inHand);
  void extendSelection(int row);  // from where the selection began up to this row
  void toggleSelected(int row);   // this row is added, or taken out
  void carryTo(int row);          // takes another row in hand, and leaves what is selected
  // Scrolls so that the row shows, or gives the list the keyboard's focus: told to the front.
  void reveal(int row) { notifyWatchers({GridChange::What::Reveal, row, 0}); }
  void focus() { notifyWatchers({GridChange::What::Focus}); }

  // Where the rider's pointer is; 0 outside. The front sets it before it raises the mouse events.
  [[nodiscard]] int pointedRow() const { return pointedRow_; }
  [[nodiscard]] int pointedColumn() const { return pointedColumn_; }
  // Which rows the list shows at present; a list without a screen shows all.
  void setVisibleRows(int first, int last);
  [[nodiscard]] bool rowShows(int row) const { return row >= firstVisible_ && row <= lastVisible_; }

  // The mouse. pointAt moves the pointer; pressAt is a whole press of a button on a cell: the pointer moves,
  // `pressed` is raised, the row is selected, and the left button raises the click. The right one leaves
  // several selected rows as they are where it is pressed on one of them.
  void pointAt(int row, int column);
  void pressAt(int row, int column, MouseButton button);
  Event<> pointerMoved;
  Event<MouseButton> pressed;
  Event<int> rowTicked;
  Event<int> headerClicked;
  // Keys that the list leaves to the logic, by name ("Ctrl+C"); and the selected rows dropped before a row.
  Event<std::string> keyPressed;
  Event<int> rowsDropped;

  void watchGrid(GridWatcher watcher) { watchers_.push_back(std::move(watcher)); }
  // For timers: any change of columns, rows, cells or selection, of the pointer's place and of what shows.
  Observable changes;

 private:
  struct Row {
    std::shared_ptr<Cells> cells;  // copied before a change, where somebody else holds them
    std::vector<CellStyle> styles;
    bool checked = false;
    bool marked = false;  // one of several selected rows
  };
  [[nodiscard]] static std::size_t at(int number) { return static_cast<std::size_t>(number - 1); }
  [[nodiscard]] bool holds(int row, int column) const;
  static Cells& ownCells(Row& row);
  void mark(int row, bool on);
  void unmarkAll();
  void markSelected();
  void takeInHand(int row);
  void notifyWatchers(const GridChange& change);

  std::vector<GridColumn> columns_;
  std::vector<Row> rows_;
  std::vector<GridWatcher> watchers_;
  int selected_ = 0;
  int marked_ = 0;  // how many rows
  int anchor_ = 0;  // where the selection began
  int pointedRow_ = 0;
  int pointedColumn_ = 0;
  int firstVisible_ = 1;
  int lastVisible_ = 1 << 30;
};

}  // namespace platform
