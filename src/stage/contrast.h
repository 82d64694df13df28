// How well what is drawn stands out, by the published measure: WCAG 2.1, "contrast ratio", from 1 to 21.
#pragma once

#include <QImage>

namespace stage {

// Of the strongest ink in that part of a picture of 32 bits a pixel, against the colour that fills most of
// it.
[[nodiscard]] double inkContrast(const QImage& picture, const QRect& area);

}  // namespace stage
