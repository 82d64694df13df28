// The page of help films.
#pragma once

#include "platform/form.h"

namespace forms {

struct AideTQ : platform::Form {
  AideTQ() : Form("AideTQ") {}
};

}  // namespace forms
