// Composing a row without the mouse: letters typed on a cell open its list and find the value, digits fill a
// duration from its right end, and Tab goes on to the next cell that has a meaning on the row.
#pragma once

#include <QComboBox>
#include <QKeyEvent>
#include <functional>
#include <string>

#include "desktop/binder.h"
#include "forms/creer_cycle.h"
#include "widgets/grid_table.h"

namespace desktop {

class CellTyping final : public QObject {
 public:
  struct Boxes {
    QComboBox& list;   // the editor of all cells but durations
    QComboBox& hours;  // the first and the last box of a duration
    QComboBox& seconds;
  };

  // `refresh` brings the page up to date with its form.
  CellTyping(forms::CreerCycle& editor, widgets::GridTable& table, const Boxes& boxes, Binder& binder,
             std::function<void()> refresh);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Keys in the list of rows, in the open list of a cell, in the boxes of a cell. True if the key was used.
  bool onTableKey(const QKeyEvent& event);
  bool onListKey(const QKeyEvent& event);
  bool onDurationKey(const QKeyEvent& event);
  bool onTab(bool forward);
  bool onBoxTab(const QObject& box, bool forward);

  void openList(const std::string& text);
  void search(const std::string& text);
  void shorten();
  void show(int line);
  void takeLine();
  void typeDigit(const std::string& digit);
  void showDigits();
  void endEditing();
  [[nodiscard]] bool typingDuration() const;
  [[nodiscard]] bool kindOpen() const;

  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  widgets::GridTable& table_;
  Boxes boxes_;
  Binder& binder_;
  std::function<void()> refresh_;
  std::string typed_;   // in the open list
  bool found_ = false;  // a line of it begins with that
  std::string digits_;  // of the duration
  int digitRow_ = 0;    // its row
};

}  // namespace desktop
