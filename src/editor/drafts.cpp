#include "editor/drafts.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "editor/layout.h"
#include "forms/creer_cycle_words.h"
#include "forms/main_form_words.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "platform/each_on_its_own.h"
#include "platform/fault.h"
#include "platform/text.h"

namespace editor {
namespace {

namespace column = model::column;

constexpr const char* ownName = "brouillon.tq2";
constexpr std::string_view extension = ".tq2";
constexpr int soon = 1000;      // ms after a change
constexpr int nextTry = 30000;  // ms after a failure

// "brouillon 2026-11-23 18h04m12", which sorts by time.
std::string asideName(platform::LocalTime when) {
  const auto midnight = std::chrono::floor<std::chrono::days>(when);
  const std::chrono::year_month_day day{midnight};
  const std::chrono::hh_mm_ss time{when - midnight};
  const auto number = [](long long value) { return platform::zeroPadded(value, 2); };
  return "brouillon " + std::to_string(static_cast<int>(day.year())) + "-" +
         number(static_cast<unsigned>(day.month())) + "-" + number(static_cast<unsigned>(day.day())) + " " +
         number(time.hours().count()) + "h" + number(time.minutes().count()) + "m" +
         number(time.seconds().count());
}

// "23/11 à 18:04" for a name as above; empty for any other.
std::string momentOf(const std::string& name) {
  constexpr std::string_view pattern = "brouillon 0000-00-00 00h00m00";
  if (!name.ends_with(extension) || name.size() < pattern.size()) return {};
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool digit = name[i] >= '0' && name[i] <= '9';
    if (pattern[i] == '0' ? !digit : name[i] != pattern[i]) return {};
  }
  return name.substr(18, 2) + "/" + name.substr(15, 2) + " à " + name.substr(21, 2) + ":" +
         name.substr(24, 2);
}

}  // namespace

Drafts::Drafts(const context::Context& context)
    : context_(context),
      editor_(context.screens.editor),
      grid_(editor_.ListView1),
      state_(context.state),
      captions_(listCaptions(context.screens)) {
  grid_.watchGrid([this](const platform::GridChange& change) { listChanged(change); });
  editor_.TimerDraft.tick.handle([this] { keep(); });
  editor_.DraftResume.click.handle([this] { resume(); });
  editor_.DraftForget.click.handle([this] { forget(); });
}

void Drafts::open() {
  platform::eachOnItsOwn([this] { putAside(); });
  platform::eachOnItsOwn([this] {
    for (const std::string& name : context_.outside.files.list(state_.dossierProgramme)) {
      if (!momentOf(name).empty()) offered_.push_back(name);
    }
  });
  offer();
}

// The present list gets a draft of its own, so an older one must not stand in its place. Its name, if there
// was one.
std::string Drafts::putAside() {
  platform::FileSystem& files = context_.outside.files;
  const std::string path = state_.dossierProgramme + ownName;
  if (!files.exists(path)) return {};
  std::optional<model::Draft> found;
  platform::eachOnItsOwn([&] { found = model::readDraft(files, path); });
  const std::string base = asideName(found ? found->kept : context_.loop.clock().localTime());
  std::string aside = base + std::string(extension);
  for (int next = 2; files.exists(state_.dossierProgramme + aside); ++next)
    aside = base + "_" + std::to_string(next) + std::string(extension);
  files.rename(path, state_.dossierProgramme + aside);
  return aside;
}

void Drafts::offer() {
  editor_.DraftBar.visible = !offered_.empty();
  editor_.DraftResume.visible = true;
  editor_.DraftForget.visible = true;
  editor_.DraftText.caption =
      offered_.empty() ? std::string()
                       : "Une liste non enregistrée du " + momentOf(offered_.back()) + " a été gardée";
}

void Drafts::tellFailure(const std::string& why) {
  editor_.DraftText.caption = "La liste n'a pas pu être gardée. " + why;
  editor_.DraftResume.visible = false;
  editor_.DraftForget.visible = false;
  editor_.DraftBar.visible = true;
}

void Drafts::listChanged(const platform::GridChange& change) {
  using What = platform::GridChange::What;
  const bool rows =
      change.what == What::RowInserted || change.what == What::RowRemoved || change.what == What::Cleared;
  // The total is summed by a timer some time after a change.
  const bool total = change.row == 1 && change.column == column::duration;
  if (!rows && (change.what != What::Text || total)) return;
  unsaved_ = !listIsNew();
  due_ = true;
  changedAt_ = context_.loop.clock().localTime();
  if (!editor_.TimerDraft.enabled) editor_.TimerDraft.enabled = true;
}

bool Drafts::listIsNew() const {
  if (grid_.rowCount() > 2) return false;
  for (int c = column::sequence; grid_.rowCount() == 2 && c <= column::gear; ++c) {
    if (grid_.text(2, c) != model::emptyCell) return false;
  }
  return grid_.rowCount() < 2 || grid_.text(2, column::duration) == model::noDuration;
}

void Drafts::listIsSaved() {
  unsaved_ = false;
  due_ = true;
  keepNow();
}

void Drafts::keep() {
  // A disk may take its time: not while a sequence counts down.
  const forms::MainForm& main = context_.screens.main;
  const bool riding = state_.plan.started() && state_.dureeSequence != 0 && !forms::ridePaused(main);
  if (riding) {
    editor_.TimerDraft.rest({&state_.dureeSequence, &context_.screens.main.Command7.caption});
    return;
  }
  editor_.TimerDraft.enabled = false;
  keepNow();
}

void Drafts::keepNow() {
  if (!due_) return;
  try {
    unsaved_ ? write() : removeOwn();
    due_ = false;
    editor_.TimerDraft.interval = soon;
  } catch (const platform::Fault& fault) {
    if (unsaved_) tellFailure(fault.what());
    editor_.TimerDraft.interval = nextTry;
    editor_.TimerDraft.enabled = true;
  }
}

void Drafts::write() {
  // What an earlier run left and the start could not put aside is never written over.
  if (!written_) {
    if (std::string left = putAside(); !left.empty()) offered_.push_back(std::move(left));
  }
  model::writeDraft(context_.outside.files, state_.dossierProgramme + ownName, draft(), grid_);
  written_ = true;
  offer();  // also instead of a failure
  // What was taken up again lies in the present draft now.
  const std::string replaced = std::exchange(resumed_, {});
  if (!replaced.empty()) platform::eachOnItsOwn([&] { context_.outside.files.remove(replaced); });
}

void Drafts::removeOwn() {
  if (!written_) return;
  context_.outside.files.remove(state_.dossierProgramme + ownName);
  written_ = false;
}

model::Draft Drafts::draft() const {
  model::Draft draft{changedAt_, state_.seanceTitre, {}, {}};
  for (std::size_t i = 0; i < captions_.size(); ++i) draft.captions.at(i) = captions_.at(i)->get();
  for (int row = 1; row <= grid_.rowCount(); ++row) draft.rows.push_back(*grid_.cells(row));
  return draft;
}

void Drafts::resume() {
  if (offered_.empty()) return;
  editor_.Command1.click();
  const std::string path = state_.dossierProgramme + offered_.back();
  const std::optional<model::Draft> kept = model::readDraft(context_.outside.files, path);
  // The list that stands there is offered next.
  std::string present;
  if (unsaved_) {
    due_ = true;
    keepNow();
    present = putAside();
    written_ = false;
  }
  offered_.pop_back();
  if (!present.empty()) offered_.push_back(present);
  if (kept) {
    show(*kept);
  } else {  // cut short: its sequences are there all the same
    model::ajouterSeance(context_.outside.files, path, grid_);
  }
  resumed_ = path;
  offer();
}

void Drafts::show(const model::Draft& kept) {
  grid_.clearRows();
  grid_.clearColumns();
  for (std::size_t i = 0; i < captions_.size(); ++i) *captions_.at(i) = kept.captions.at(i);
  state_.seanceTitre = kept.sessionTitle;
  for (platform::GridColumn& made : model::gridColumns(forms::cycleMode(editor_)))
    grid_.addColumn(std::move(made));
  for (const platform::Grid::Cells& row : kept.rows) {
    grid_.addRow(row);
    styleRow(grid_, grid_.rowCount());
  }
  sizeGrid(editor_);
  recalerColonnes(editor_);
  grid_.select(1);
}

void Drafts::forget() {
  if (offered_.empty()) return;
  const std::string path = state_.dossierProgramme + offered_.back();
  if (context_.outside.files.exists(path)) context_.outside.files.remove(path);
  offered_.pop_back();
  offer();
}

}  // namespace editor
