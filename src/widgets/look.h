// Changes the `look` of a widget, by which the style sheet chooses its style.
#pragma once

#include <QStyle>
#include <QWidget>

namespace widgets {

inline void setLook(QWidget& widget, const QString& look) {
  if (widget.property("look").toString() == look) return;
  widget.setProperty("look", look);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

}  // namespace widgets
