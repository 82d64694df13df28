// The editor's page: what it sets up when it opens, its help on hover, its list modes, the way back.
#pragma once

#include "editor/cell_editor.h"
#include "editor/history.h"
#include "editor/lines.h"
#include "editor/session_files.h"
#include "editor/totals.h"
#include "heartrate/calculator.h"
#include "voice/toolbox.h"

namespace editor {

class Page {
 public:
  explicit Page(const voice::Toolbox& tools);

 private:
  void open();
  void listFiles();
  void setTips();
  void connectHoverHelp();
  void toggleListMode();
  void leave();

  voice::Toolbox tools_;
  forms::CreerCycle& form_;
  heartrate::Calculator calculator_;
  Lines lines_;
  CellEditor cells_;
  SessionFiles files_;
  Totals totals_;
  History history_;
};

}  // namespace editor
