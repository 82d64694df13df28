#include "stage/contrast.h"

#include <QColor>
#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace stage {
namespace {

constexpr double enough = 30'000;  // pixels

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [dark, bright] = std::minmax({luminance(a), luminance(b)});
  return (bright + 0.05) / (dark + 0.05);
}

}  // namespace

double inkContrast(const QImage& picture, const QRect& area) {
  const QRect seen = area & picture.rect();
  // Only some dots of a large area are looked at: its letters are large, and their strokes wider than a step.
  const int step = 1 + static_cast<int>(std::sqrt(seen.width() * seen.height() / enough));
  std::unordered_map<QRgb, int> counts;
  for (int y = seen.top(); y <= seen.bottom(); y += step) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = seen.left(); x <= seen.right(); x += step) ++counts[line[x]];
  }
  if (counts.empty()) return 1;
  const auto most = std::max_element(counts.begin(), counts.end(),
                                     [](const auto& a, const auto& b) { return a.second < b.second; });
  const QColor ground = QColor::fromRgb(most->first);
  double best = 1;
  for (const auto& [colour, times] : counts) best = std::max(best, contrast(QColor::fromRgb(colour), ground));
  return best;
}

}  // namespace stage
