#include "desktop/films_view.h"

#include "ui_aide_tq.h"
#include "widgets/qt_text.h"

namespace desktop {

FilmsView::FilmsView(forms::AideTQ& form, QWidget& page)
    : FormView(page), films_(form), ui_(std::make_unique<Ui::AideTQ>()) {
  ui_->setupUi(&page);
  follow(form);
}

FilmsView::~FilmsView() = default;

void FilmsView::draw() {
  ui_->filmsTitle->setText(widgets::toQt(films_.caption.get()));
}

}  // namespace desktop
