// Lets a panel be pulled out of its row: held with the left button it floats over the page, where it is read
// without being in the way; brought back over its row, or pressed twice, it takes its place there again.
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
  // Its text or the window's scale is another: it takes the height that it needs, inside the page.
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
  QString homeLook_;          // of the panel in its row
  QPoint grip_;               // where in the panel the pointer holds it
  bool held_ = false;
};

}  // namespace widgets
