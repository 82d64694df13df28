// The print form.
#pragma once

#include "platform/form.h"

namespace forms {

struct ImprimerTQ1 : platform::Form {
  ImprimerTQ1() : Form("ImprimerTQ1") {}
};

}  // namespace forms
