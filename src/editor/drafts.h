// Keeps a list that is not saved, so that nothing that ends the program loses it. Soon after a change a draft
// lies in the program's folder; it goes once the list is saved or begun anew. A draft that the program finds
// when it starts is put aside and offered in a bar over the list, the newest first.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "context/context.h"
#include "model/draft_file.h"

namespace editor {

class Drafts {
 public:
  explicit Drafts(const context::Context& context);

  // Puts the draft of an earlier run aside and offers what is kept. To be called when the form loads.
  void open();
  // Nothing stands in the list but the blank row with which every list begins.
  [[nodiscard]] bool listIsNew() const;
  // What the list holds now stands in a file of the rider's.
  void listIsSaved();
  // Writes what is due, because the program ends.
  void keepNow();

 private:
  void listChanged(const platform::GridChange& change);
  void keep();
  void write();
  void removeOwn();
  void tellFailure(const std::string& why);
  std::string putAside();
  void offer();
  void resume();
  void show(const model::Draft& kept);
  void forget();
  [[nodiscard]] model::Draft draft() const;

  context::Context context_;
  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  model::SharedState& state_;
  std::array<platform::Property<std::string>*, 5> captions_;
  platform::LocalTime changedAt_{};
  bool unsaved_ = false;
  bool due_ = false;                  // the disk does not hold the present list yet
  bool written_ = false;              // a draft of the present list lies there
  std::vector<std::string> offered_;  // names of the drafts put aside, the newest last
  std::string resumed_;               // path of one that stands in the list and not yet in a draft of its own
};

}  // namespace editor
