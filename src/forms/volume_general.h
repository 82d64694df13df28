// The volume dialog: shown, hidden, unloaded.
#pragma once

#include "platform/form.h"

namespace forms {

struct VolumeGeneral : platform::Form {
  VolumeGeneral() : Form("VolumeGeneral") {}
};

}  // namespace forms
