// Lets a panel be dragged out of its row with the left button, to float over the page out of the way. Dropped
// over its row, or double-clicked, it goes back there.
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class QBoxLayout;
class QFrame;
class QWidget;

namespace widgets {

class MovablePanel final : public QObject {
  Q_OBJECT
 public:
  // `panel` stands in the row `home` and floats inside `page`.
  MovablePanel(QFrame& panel, QBoxLayout& home, QWidget& page);
  // To be called when the panel's text or the window's scale has changed: fits its height, and keeps it
  // inside the page.
  void fit();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool floating() const { return stand_ != nullptr; }
  void lift();
  void putBack();
  void moveTo(const QPoint& corner);
  [[nodiscard]] bool overHome() const;

  QFrame& panel_;
  QBoxLayout& home_;
  QWidget& page_;
  QWidget* stand_ = nullptr;  // keeps the row's place while the panel is away
  QString homeLook_;          // the panel's look while in its row
  QPoint grip_;               // where in the panel the pointer holds it
  bool held_ = false;
};

}  // namespace widgets
