// Measures how well a drawing stands out from its ground: the "contrast ratio" of WCAG 2.1, from 1 to 21.
#pragma once

#include <QImage>

namespace stage {

// The contrast of the strongest ink in `area` against the colour that fills most of it. `picture` has 32 bits
// a pixel.
[[nodiscard]] double inkContrast(const QImage& picture, const QRect& area);

}  // namespace stage
