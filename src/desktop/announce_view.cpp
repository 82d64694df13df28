#include "desktop/announce_view.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/covered_parts.h"
#include "devices/sound_peaks.h"
#include "platform/each_on_its_own.h"
#include "ui_enr_une_annonce.h"
#include "widgets/look.h"
#include "widgets/qt_text.h"

namespace desktop {

using devices::peaksOf;
using widgets::fromQt;
using widgets::setLook;
using widgets::Waveform;

namespace {

void retainPlaceWhenHidden(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace

AnnounceView::AnnounceView(forms::EnrUneAnnonce& form, const model::SharedState& state, QWidget& page,
                           Binder& binder, std::function<void(const std::string& path)> saveTake)
    : FormView(page),
      form_(form),
      state_(state),
      ui_(std::make_unique<Ui::EnrUneAnnonce>()),
      saveTake_(std::move(saveTake)) {
  ui_->setupUi(&page);
  for (QWidget* widget : std::initializer_list<QWidget*>{ui_->Label16, ui_->Label17, ui_->musicTimes})
    retainPlaceWhenHidden(*widget);
  ui_->MyFrame1->raise();
  ui_->infoPlace->raise();
  ui_->infoPlace->hide();
  ui_->ListView1->showGrid(form.ListView1, [&binder](auto action) { binder.run(std::move(action)); });
  followAll(form);
  form.ListView1.watchGrid([this](const platform::GridChange&) { refreshSoon(); });
}

AnnounceView::~AnnounceView() = default;

void AnnounceView::rescale() {
  ui_->ListView1->rescale();
}

void AnnounceView::draw() {
  ui_->ListView1->gridModel()->flush();
  refreshPanels();
  refreshTake();
  refreshStored();
  refreshMusic();
}

void AnnounceView::refreshPanels() {
  // Covered parts are hidden, so that the keyboard cannot reach them.
  ui_->recordingPlace->setVisible(!coverOf(form_, "recordingPlace"));
  ui_->libraryHome->setVisible(!coverOf(form_, "libraryHome"));
  const bool info = form_.MyFrame4.visible;
  if (info == !ui_->infoPlace->isHidden()) return;
  ui_->infoPlace->setVisible(info);
  if (info) ui_->MyButton3->setFocus();
}

int AnnounceView::takeSeconds() const {
  if (recording() || listening()) return std::max(0, state_.take.seconds);
  return static_cast<int>(std::lround(takeLength()));
}

double AnnounceView::takeLength() const {
  return state_.take.length.value_or(0) / 1000.0;
}

void AnnounceView::refreshTake() {
  using enum widgets::TakeRing::Mood;
  ui_->takeRing->show(takeSeconds(), recording() ? Recording : listening() ? Listening : Resting);
  const int left = listening() ? takeSeconds() : 0;  // counts down from one more than the length
  ui_->takeWave->setHeard(left > 0 ? std::max(0.0, 1 - (left - 1) / std::max(1.0, takeLength())) : 0);
  drawTake();
  // The button for the next step stands out.
  const std::pair<QWidget*, bool> steps[] = {
      {ui_->Command3, recording()},
      {ui_->Command4, listening()},
      {ui_->Command1, !recording() && !listening() && form_.Command1.enabled},
      {ui_->Command2, !recording() && !listening() && !form_.Command1.enabled},
  };
  for (const auto& [button, leads] : steps) setLook(*button, leads ? QStringLiteral("primary") : QString());
}

void AnnounceView::drawTake() {
  if (recording()) {
    if (!taking_) ui_->takeWave->setPeaks({});
    taking_ = true;
    takeShown_.clear();
    return;
  }
  const std::string& file = state_.take.file;
  if (std::exchange(taking_, false) && saveTake_) {
    QTemporaryDir passing;
    const std::string path = fromQt(passing.filePath(QStringLiteral("take.wav")));
    platform::eachOnItsOwn([&] { saveTake_(path); });
    ui_->takeWave->setPeaks(peaksOf(path, Waveform::parts));
  } else if (!file.empty() && file != takeShown_) {
    takeShown_ = file;
    ui_->takeWave->setPeaks(peaksOf(file, Waveform::parts));
  } else if (!state_.take.length) {  // the take is gone
    takeShown_.clear();
    ui_->takeWave->setPeaks({});
  }
}

void AnnounceView::refreshStored() {
  const std::string shown = forms::announcementOpen(form_) ? form_.Label15.caption.get() : std::string();
  if (shown != storedShown_) {
    storedShown_ = shown;
    ui_->storedWave->setPeaks(shown.empty() ? std::vector<float>() : peaksOf(shown, Waveform::parts));
  }
  ui_->storedWave->setHeard(state_.announcement.share());
}

void AnnounceView::refreshMusic() {
  const bool chosen = forms::musicChosen(form_);
  ui_->Label6->setProperty("tone", chosen ? QStringLiteral("text") : QStringLiteral("second"));
  ui_->musicTimes->setVisible(form_.Label5.visible || form_.Label7.visible);
  ui_->musicBar->setShare(chosen ? state_.music.get().share() : 0);
  const bool empty = form_.File1.lines().empty();
  setLook(*ui_->MyButton4, empty ? QStringLiteral("primary") : QString());
  setLook(*ui_->Command8, empty ? QString() : QStringLiteral("primary"));
  setLook(*ui_->MyButton12, form_.MyButton12.enabled ? QStringLiteral("primary") : QString());
}

}  // namespace desktop
