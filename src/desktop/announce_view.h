// Draws what the controls for announcements and music do not show themselves: covered panels, the seconds and
// waveform of a take, the progress of a piece. It only reads the form and the shared state.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/binder.h"
#include "desktop/form_view.h"
#include "forms/enr_une_annonce_words.h"
#include "model/training_model.h"

namespace Ui {
class EnrUneAnnonce;
}

namespace desktop {

class AnnounceView final : public FormView {
  Q_OBJECT
 public:
  // `saveTake` writes the recorder's take to a file; without it a take has a waveform only once it is saved.
  AnnounceView(forms::EnrUneAnnonce& form, const model::SharedState& state, QWidget& page, Binder& binder,
               std::function<void(const std::string& path)> saveTake);
  ~AnnounceView() override;
  void rescale() override;

 private:
  void draw() override;
  void refreshPanels();
  void refreshTake();
  void drawTake();
  void refreshStored();
  void refreshMusic();
  [[nodiscard]] bool recording() const { return forms::recordingTake(form_); }
  [[nodiscard]] bool listening() const { return forms::listeningToTake(form_); }
  [[nodiscard]] int takeSeconds() const;    // shown in the ring
  [[nodiscard]] double takeLength() const;  // s

  forms::EnrUneAnnonce& form_;
  const model::SharedState& state_;
  std::unique_ptr<Ui::EnrUneAnnonce> ui_;
  std::function<void(const std::string&)> saveTake_;
  bool taking_ = false;    // a recording is under way, or its waveform is not drawn yet
  std::string takeShown_;  // file of the waveform drawn last
  std::string storedShown_;
};

}  // namespace desktop
