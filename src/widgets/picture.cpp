#include "widgets/picture.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

#include "widgets/theme.h"

namespace widgets {
namespace {

QString fileOf(const QString& name) {
  return QStringLiteral(":/ventoria/icons/") + name + QStringLiteral(".svg");
}

// The place of a drawing: as large as `place` allows, in its middle.
QRectF fitted(const QSvgRenderer& drawing, const QRectF& place) {
  QRectF target(QPointF(0, 0), QSizeF(drawing.defaultSize()).scaled(place.size(), Qt::KeepAspectRatio));
  target.moveCenter(place.center());
  return target;
}

void paint(QPainter& painter, const QString& name, const QRectF& place, const QPalette& palette) {
  QFile file(fileOf(name));
  if (!file.open(QIODevice::ReadOnly)) return;
  QByteArray svg = file.readAll();
  using enum model::EffortFamily;
  const std::pair<const char*, QColor> tokens[] = {
      {"@text", palette.color(role::text)},
      {"@second", palette.color(role::second)},
      {"@accent", palette.color(role::accent)},
      {"@line", palette.color(role::line)},
      {"@card", palette.color(role::card)},
      {"@ground", palette.color(role::ground)},
      {"@wrong", palette.color(role::wrong)},
      {"@warmth", familyColour(palette, Warmth)},
      {"@endurance", familyColour(palette, Endurance)},
      {"@strength", familyColour(palette, Strength)},
      {"@speed", familyColour(palette, Speed)},
      {"@relief", familyColour(palette, Relief)},
      {"@recovery", familyColour(palette, Recovery)},
      {"@technique", familyColour(palette, Technique)},
  };
  for (const auto& [token, colour] : tokens) svg.replace(token, colour.name().toLatin1());
  QSvgRenderer renderer(svg);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, fitted(renderer, place));
}

}  // namespace

QPixmap drawing(const QString& name, const QSize& size, const QPalette& palette, double ratio) {
  QPixmap pixmap(size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(painter, name, QRectF(QPointF(0, 0), QSizeF(size)), palette);
  return pixmap;
}

Picture::Picture(QWidget* parent) : QWidget(parent) {}

void Picture::setPicture(const QString& name) {
  picture_ = name;
  update();
}

QRectF Picture::pictureRect() const {
  const QSvgRenderer drawing(fileOf(picture_));
  return drawing.isValid() ? fitted(drawing, QRectF(rect())) : QRectF();
}

QSize Picture::sizeHint() const {
  return {dp(this, 22), dp(this, 22)};
}

void Picture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paint(painter, picture_, QRectF(rect()), QGuiApplication::palette());
}

PictureButton::PictureButton(QWidget* parent) : QToolButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
}

void PictureButton::setPicture(const QString& name) {
  picture_ = name;
  update();
}

QRectF PictureButton::pictureRect() const {
  const double side = std::min({width(), height(), dp(this, 24)});
  QRectF place(0, 0, side, side);
  place.moveCenter(QRectF(rect()).center());
  return place;
}

void PictureButton::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  QPainter painter(this);
  painter.setOpacity(isEnabled() ? 1.0 : 0.4);
  paint(painter, picture_, pictureRect(), QGuiApplication::palette());
}

}  // namespace widgets
