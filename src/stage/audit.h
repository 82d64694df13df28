// What a demanding eye would find on a window: controls that are cut off or lie over one another, texts that
// do not fit or are too faint to read, controls without a name for those who do not see them, or out of the
// keyboard's reach.
#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

#include "platform/form.h"

namespace stage {

// A line for each fault of what shows `form` in its window; `picture` is what the window looks like.
[[nodiscard]] QStringList faultsOf(const platform::Form& form, QWidget& window, const QImage& picture);

}  // namespace stage
