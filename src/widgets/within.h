// Keeps what floats inside the room that it floats in.
#pragma once

#include <QRect>
#include <algorithm>

namespace widgets {

// The same box, moved as little as it takes; at the upper left where it is larger than the room.
inline QRect within(QRect box, const QSize& room) {
  box.moveLeft(std::clamp(box.left(), 0, std::max(0, room.width() - box.width())));
  box.moveTop(std::clamp(box.top(), 0, std::max(0, room.height() - box.height())));
  return box;
}

}  // namespace widgets
