// The volume dialog, and the advice about the sound that it keeps up to date on the other screens.
#pragma once

#include <optional>

#include "context/context.h"
#include "volume/cls_af_master_volume.h"

namespace volume {

class VolumeGeneral {
 public:
  explicit VolumeGeneral(const context::Context& context);

 private:
  clsAfMasterVolume& master();
  void connectCallers();
  void load();
  void spy();
  void showMute();
  void showVolume();
  void noticeOnce();
  void restUntilMoved();

  context::Context context_;
  forms::VolumeGeneral& dialog_;
  forms::MainForm& main_;
  std::optional<clsAfMasterVolume> master_;  // made at first use, dropped at load and unload
  int etatMuet_ = 0;
  bool noticed_ = false;
};

}  // namespace volume
