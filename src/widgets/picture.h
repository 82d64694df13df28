// The program's own drawings: SVG files whose colours are names of the theme.
#pragma once

#include <QIcon>
#include <QToolButton>
#include <QWidget>

namespace widgets {

// The drawing of that name in the palette's colours, `size` px large with `ratio` dots a pixel; empty if
// unknown.
[[nodiscard]] QPixmap drawing(const QString& name, const QSize& size, const QPalette& palette,
                              double ratio = 1);

// Shows a drawing as large as its place allows.
class Picture final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString picture READ picture WRITE setPicture)

 public:
  explicit Picture(QWidget* parent = nullptr);
  [[nodiscard]] QString picture() const { return picture_; }
  void setPicture(const QString& name);
  // Where in the widget it is drawn.
  [[nodiscard]] QRectF pictureRect() const;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QString picture_;
};

// A button that shows a drawing.
class PictureButton final : public QToolButton {
  Q_OBJECT
  Q_PROPERTY(QString picture READ picture WRITE setPicture)

 public:
  explicit PictureButton(QWidget* parent = nullptr);
  [[nodiscard]] QString picture() const { return picture_; }
  void setPicture(const QString& name);
  [[nodiscard]] QRectF pictureRect() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString picture_;
};

}  // namespace widgets
