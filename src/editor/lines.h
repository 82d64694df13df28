// The commands that make and unmake rows: a new list, an added or inserted or deleted row, cycle mode.
#pragma once

#include <string>
#include <vector>

#include "context/context.h"

namespace editor {

class Lines {
 public:
  explicit Lines(const context::Context& context);

  // What every command begins with: the cell editors go, a preview stops, the volume dialog closes.
  void preambule();
  void creerSeance();
  // MyButton4 while its caption adds rows and not sessions.
  void ajouterSequenceVariante();
  // What comes before rows of the rider's own are added, whichever way.
  void prepareOwnRows();
  // A name that came from a file is lost as soon as a row is added by hand.
  void forgetNameForOwnRows();
  // Rows in their order; none of them the first.
  void removeRows(const std::vector<int>& rows);

 private:
  void viderListe();
  void ajouterSequence();
  void insererLigne();
  void supprimerLigne();
  void basculerCycle();
  void buildList();
  void showTotalTitle();
  void showRefusal(const std::string& text, const std::string& title);
  void refuseAddition();
  [[nodiscard]] bool announcementMissing() const;
  [[nodiscard]] bool lastRowClosed() const;
  void appendBlankRow(const platform::CellStyle& style);

  context::Context context_;
  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace editor
