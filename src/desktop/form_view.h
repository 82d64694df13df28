// Draws what a form's controls do not show themselves on its page. What a change of a control asks for is
// drawn once, soon after, and on a page out of sight only when the page is next seen.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include "platform/form.h"

namespace desktop {

class FormView : public QObject {
  Q_OBJECT
 public:
  ~FormView() override = default;

  // To be called once the page's widgets are bound to the form.
  virtual void whenBound() {}
  // To be called when the window's scale has changed.
  virtual void rescale() {}
  // Shows the text that the voice is speaking; empty for silence.
  virtual void speak(const QString& /*text*/) {}

  // Draws everything anew.
  void refresh();
  // Draws what has changed and is not drawn yet.
  void catchUp();

 protected:
  explicit FormView(QWidget& page) : page_(page) { page.installEventFilter(this); }
  // Has a change of the component drawn.
  void follow(platform::Component& component);
  void followAll(const platform::Form& form);
  void refreshSoon();
  virtual void draw() = 0;
  bool eventFilter(QObject* watched, QEvent* event) override;

  QWidget& page_;

 private:
  void customEvent(QEvent* event) override;

  bool stale_ = false;   // something has changed and is not drawn yet
  bool posted_ = false;  // and will be, as soon as events are handled
};

}  // namespace desktop
