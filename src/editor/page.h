// The editor's page: what it sets up when it opens, its help on hover, its list modes, the way back.
#pragma once

#include "context/context.h"
#include "editor/cell_editor.h"
#include "editor/drafts.h"
#include "editor/history.h"
#include "editor/lines.h"
#include "editor/list_watch.h"
#include "editor/ride_forecast.h"
#include "editor/row_commands.h"
#include "editor/session_files.h"
#include "heartrate/calculator.h"
#include "voice/voice.h"

namespace editor {

class Page {
 public:
  Page(const context::Context& context, voice::Voice& voice);

  // Writes a list that is not saved where the next start finds it.
  void keepDraft() { drafts_.keepNow(); }

 private:
  void open();
  void listFiles();
  void setTips();
  void connectHoverHelp();
  void toggleListMode();
  void leave();

  context::Context context_;
  forms::CreerCycle& editor_;
  heartrate::Calculator calculator_;
  Lines lines_;
  RowCommands rows_;
  Drafts drafts_;
  RideForecast forecast_;
  CellEditor cells_;
  SessionFiles files_;
  ListWatch listWatch_;
  History history_;
};

}  // namespace editor
