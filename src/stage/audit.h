// Looks for faults on a window: controls that are cut off or lie over one another, texts that do not fit or
// are too faint to read, controls without an accessible name or out of the keyboard's reach.
#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

#include "platform/form.h"

namespace stage {

// A line for each fault. `window` is the one that shows `form`, `picture` a picture of it.
[[nodiscard]] QStringList faultsOf(const platform::Form& form, QWidget& window, const QImage& picture);

}  // namespace stage
