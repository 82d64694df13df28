// The menus of a form. Their entries follow the form's controls; the button of a menu's name opens it, or the
// logic does, as a pop-up.
#pragma once

#include <QHash>
#include <QObject>
#include <functional>

#include "desktop/rider_input.h"
#include "platform/menu.h"

class QAction;
class QMenu;

namespace desktop {

class FormMenus final : public QObject {
  Q_OBJECT
 public:
  explicit FormMenus(RiderInput& input) : input_(input) {}

  void tie(const platform::Form& form, QWidget& page);
  // `told` is called for each menu that the logic opens.
  void onPopUp(std::function<void(const platform::MenuItem&)> told) { poppedUp_ = std::move(told); }

 private:
  void tieEntry(platform::MenuItem& item, QAction& action);
  void tieOpeners(platform::MenuItem& item, QMenu& menu, const QWidget& page);
  void popUp(QMenu& menu);

  RiderInput& input_;
  QHash<const platform::MenuItem*, QMenu*> menus_;
  std::function<void(const platform::MenuItem&)> poppedUp_;
};

}  // namespace desktop
