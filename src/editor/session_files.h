// Adding a saved session to the list and saving the list, with all that the rider is asked.
#pragma once

#include <optional>
#include <string>

#include "context/context.h"
#include "editor/drafts.h"
#include "editor/lines.h"
#include "model/session_file.h"
#include "voice/voice.h"

namespace editor {

class SessionFiles {
 public:
  SessionFiles(const context::Context& context, voice::Voice& voice, Lines& lines, Drafts& drafts);

 private:
  void ajouterUneSeance();
  void enregistrerListe();
  void prepareAddition();
  void add(const std::string& chosen);
  // MyButton4 and Command5: a session or a row, as the caption says.
  void addByCaption();
  // The path of a file of the present version, converted if need be; none where the rider refuses.
  [[nodiscard]] std::optional<std::string> presentVersion(std::string path);
  // The path to save under; none where the rider cancels.
  [[nodiscard]] std::optional<std::string> askPath();
  void reportMissingRows(const std::string& path, const model::FoundSequences& sequences);
  void write(const std::string& path);

  context::Context context_;
  voice::Voice& voice_;
  Lines& lines_;
  Drafts& drafts_;
  forms::CreerCycle& editor_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace editor
