// Keeps a floating box inside its surroundings.
#pragma once

#include <QRect>
#include <algorithm>

namespace widgets {

// The box, moved as little as needed to lie inside `room`; at the upper left if it is larger than the room.
inline QRect within(QRect box, const QSize& room) {
  box.moveLeft(std::clamp(box.left(), 0, std::max(0, room.width() - box.width())));
  box.moveTop(std::clamp(box.top(), 0, std::max(0, room.height() - box.height())));
  return box;
}

}  // namespace widgets
