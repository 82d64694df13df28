#include "desktop/main_view.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <cmath>

#include "desktop/covered_parts.h"
#include "desktop/keyboard_focus.h"
#include "forms/main_form_words.h"
#include "forms/main_message.h"
#include "model/training_model.h"
#include "ui_main_form.h"
#include "widgets/fade_away.h"
#include "widgets/look.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace desktop {

using widgets::FadeAway;
using widgets::ProfileStep;
namespace role = widgets::role;
using widgets::setLook;
using widgets::toQt;

namespace {

std::size_t at(int row) {
  return static_cast<std::size_t>(row);
}

void retainPlaceWhenHidden(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

// Whether the text is more than a mark for "nothing".
bool says(const std::string& text) {
  return !text.empty() && text != " " && text != model::noMeaning;
}

}  // namespace

MainView::MainView(forms::MainForm& form, const model::SharedState& state, QWidget& page)
    : FormView(page), main_(form), state_(state), ui_(std::make_unique<Ui::MainForm>()) {
  ui_->setupUi(&page);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{ui_->Label4, ui_->Label5, ui_->Label6, ui_->Label1, ui_->Label2,
                                       ui_->Label3, ui_->sequenceBar, ui_->buttonRow}) {
    retainPlaceWhenHidden(*widget);
  }
  // A press or a move over the panel's contents is one over the panel.
  for (auto* inside : ui_->Picture6->findChildren<QWidget*>()) {
    if (inside->objectName() != QLatin1String("Label40"))
      inside->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  ui_->Picture6->raise();
  new FadeAway(*ui_->Picture6);
  ui_->banner->raise();
  ui_->banner->setAutoFillBackground(true);
  ui_->firstText->setTextFormat(Qt::RichText);
  headerStays_.setSingleShot(true);
  headerStays_.setInterval(std::chrono::seconds(3));
  connect(&headerStays_, &QTimer::timeout, this, &MainView::refreshSoon);
  followAll(form);
  speak({});
}

MainView::~MainView() = default;

void MainView::speak(const QString& text) {
  const QString shown = text.isEmpty() ? QString() : QStringLiteral("« ") + text + QStringLiteral(" »");
  for (QLabel* label : {ui_->ridePrompt, ui_->countdownPrompt, ui_->settingsPrompt}) label->setText(shown);
}

void MainView::draw() {
  followWindow();
  refreshPages();
  refreshRoom();
  refreshRide();
  refreshCards();
  refreshProfile();
  refreshCountdown();
}

void MainView::refreshPages() {
  ui_->countdownPage->setVisible(main_.MyFrame2.visible && !coverOf(main_, "countdownPage"));
  ui_->ridePage->setVisible(!coverOf(main_, "ridePage"));
  ui_->MyFrame1->setText(forms::sessionTitled(main_) ? toQt(main_.MyFrame1.caption.get()) : QString());
  ui_->timeBoxes->setVisible(forms::timeBoxesShown(main_));
  ui_->volumeBox->setVisible(forms::volumeKnown(main_));
  ui_->contactScrim->setVisible(main_.Picture12.visible);
  ui_->noticePicture->setPicture(toQt(main_.Image18.visible ? "sound-off" : "sound-on"));
  // Buttons under the ride's panel would show at its round corners and take the keyboard.
  const bool covered = coverOf(main_, "buttonRow").has_value();
  if (covered) handFocusToPage(*ui_->buttonRow);
  ui_->buttonRow->setVisible(!covered);
  // The next step stands out: the start if there is a duration, else the way to the sessions.
  const bool startable = main_.MyButton1.enabled && forms::startOffered(main_);
  setLook(*ui_->MyButton1, startable ? QStringLiteral("primary") : QString());
  setLook(*ui_->MyButton5, main_.MyButton1.enabled ? QString() : QStringLiteral("primary"));
}

void MainView::followWindow() {
  page_.window()->installEventFilter(this);  // only once, however often
  if (QWindow* handle = page_.window()->windowHandle()) handle->installEventFilter(this);
}

bool MainView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == page_.window() && event->type() == QEvent::WindowStateChange) refreshSoon();
  if (watched == page_.window()->windowHandle() && event->type() == QEvent::MouseMove &&
      page_.window()->isFullScreen()) {
    headerStays_.start();
    if (!ui_->header->isVisible()) refreshSoon();
  }
  return FormView::eventFilter(watched, event);
}

// A ride that fills the screen is read from far away: hours that are nil leave their room, the header folds
// away until the pointer moves, and what comes next grows.
void MainView::refreshRoom() {
  const bool large = page_.window()->isFullScreen() && riding();
  const bool folded = large && !headerStays_.isActive();
  if (folded) handFocusToPage(*ui_->header);
  ui_->header->setVisible(!folded);
  const bool hours = !large || main_.Label4.caption != "00";
  ui_->Label4->setVisible(hours && main_.Label4.visible);
  ui_->Label1->setVisible(hours && main_.Label1.visible);
  for (QWidget* hour : std::initializer_list<QWidget*>{ui_->Label4, ui_->Label1}) {
    QSizePolicy policy = hour->sizePolicy();
    if (policy.retainSizeWhenHidden() == large) {
      policy.setRetainSizeWhenHidden(!large);
      hour->setSizePolicy(policy);
    }
  }
  ui_->Label5->setLeading(!hours);
  const int size = large ? largestDigits(hours) : 0;
  for (widgets::ChronoDigits* digits : {ui_->Label4, ui_->Label5, ui_->Label6}) digits->setSize(size);
  setLook(*ui_->nextText, large ? QStringLiteral("nextlarge") : QStringLiteral("next"));
}

// All of one size, for the width and the height that they have together.
int MainView::largestDigits(bool hours) const {
  constexpr int sample = 100;
  QSize taken(0, 0);
  for (const widgets::ChronoDigits* digits : {ui_->Label4, ui_->Label5, ui_->Label6}) {
    if (digits == ui_->Label4 && !hours) continue;
    const QSize each = digits->sizeAt(sample);
    taken = QSize(taken.width() + each.width(), each.height());
  }
  const int height = ui_->chrono->height() - 2 * ui_->Label2->height();
  return sample * std::min(ui_->chrono->width() * 100 / taken.width(), height * 100 / taken.height()) / 100;
}

void MainView::refreshRide() {
  const model::EffortFamily family = model::effortFamily(main_.Label11.caption.get());
  ui_->kindChip->setVisible(main_.Label11.visible);
  ui_->kindChip->show(family, main_.Label11.visible);
  ui_->sequenceBar->setVisible(riding());
  ui_->sequenceBar->show(barFamily(family),
                         state_.dureeSequence > 0 ? state_.ecouleSequence / state_.dureeSequence : 0);
  // The label holds a message outside a ride; during a ride it says in its card that there is no target.
  const bool message = forms::showsMessage(main_) && !riding();
  ui_->banner->setText(message ? toQt(main_.Label44.caption.get()) : QString());
  ui_->banner->setVisible(message);
}

// In its last seconds the bar wears the colour of what comes next: every other second, or steadily where the
// desktop asks for calm.
model::EffortFamily MainView::barFamily(model::EffortFamily present) const {
  constexpr long announced = 10;  // s
  const long left = std::lround(state_.restantSequence * model::secondsADay);
  const int next = riding() && left > 0 && left <= announced ? nextRow() : 0;
  const bool lit = left % 2 == 0 || !QApplication::isEffectEnabled(Qt::UI_General);
  return next > 0 && lit ? model::effortFamily(state_.plan.rows[at(next)].planSequence) : present;
}

void MainView::refreshCards() {
  ui_->cadenceCard->setVisible(main_.Label10.visible);
  ui_->gearCard->setVisible(forms::gearShown(main_));
  ui_->gearCross->setVisible(main_.Label15.visible && main_.Label20.visible && says(main_.Label15.caption) &&
                             says(main_.Label20.caption));
  // An empty line of a layout takes its share all the same.
  ui_->gearLayout->setStretch(1, main_.Label39.visible ? 0 : 1);
  // Two numbers stand close together; two words share the width.
  const bool words = main_.Label20.caption.get().size() > 2 || main_.Label15.caption.get().size() > 2;
  ui_->gearLine->setStretch(0, words ? 1 : 0);
  ui_->Label20->setSizePolicy(words ? QSizePolicy::Ignored : QSizePolicy::Maximum, QSizePolicy::Preferred);
  ui_->Label15->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  ui_->targetCard->setVisible(main_.Label44.visible && riding());
}

int MainView::nextRow() const {
  if (state_.plan.sequenceCourante < state_.nbSequences) return state_.plan.sequenceCourante + 1;
  return state_.seanceCourante < state_.nbSeances ? 1 : 0;
}

// What follows the kind of a row.
QString MainView::factsOf(const model::PlanRow& row) {
  if (row.spoken()) return {};
  QStringList facts{{}, toQt(row.planDuree)};
  if (says(row.planCadence)) facts << toQt(row.planCadence) + QStringLiteral(" tr/min");
  QStringList gears;
  for (const std::string& gear : {row.planPlateau, row.planBraquet}) {
    if (says(gear)) gears << toQt(gear);
  }
  if (!gears.isEmpty()) facts << gears.join(QStringLiteral(" × "));
  return facts.join(QStringLiteral(" · "));
}

void MainView::refreshProfile() {
  std::vector<ProfileStep> steps;
  const bool planned = state_.nbSequences > 0 && at(state_.nbSequences) < state_.plan.rows.size();
  for (int number = 1; planned && number <= state_.nbSequences; ++number) {
    const model::PlanRow& row = state_.plan.rows[at(number)];
    steps.push_back(
        {row.planSequence, model::parseSeconds(row.planDuree).value_or(0), row.planFreqCard, number});
  }
  ui_->countdownProfile->setSteps(steps);
  ui_->rideProfile->setSteps(std::move(steps));
  ui_->rideProfile->setPlace(state_.plan.sequenceCourante - 1, state_.ecouleSequence * model::secondsADay);
  ui_->rideProfile->setVisible(planned);
  ui_->countdownProfile->setVisible(planned);

  // The sentence about a suspend takes the place of what comes next.
  const bool told = !main_.Label43.caption.get().empty();
  const int next = planned && riding() && !told ? nextRow() : 0;
  ui_->nextWord->setVisible(next > 0);
  ui_->nextWord->setText(next > 0 ? QStringLiteral("Ensuite :") : QString());
  ui_->nextChip->setVisible(next > 0);
  if (next > 0) ui_->nextChip->show(model::effortFamily(state_.plan.rows[at(next)].planSequence));
  ui_->nextText->setVisible(!told);
  ui_->Label43->setSizePolicy(told ? QSizePolicy::Expanding : QSizePolicy::Preferred, QSizePolicy::Preferred);
  const model::PlanRow& row = state_.plan.rows[at(next)];
  ui_->nextText->setHead(next > 0 ? toQt(row.planSequence) : QString());
  ui_->nextText->setText(next > 0 ? factsOf(row) : QString());
  ui_->nextText->setAccessibleName(toQt(row.planSequence) + ui_->nextText->text());
}

void MainView::refreshCountdown() {
  const int length = forms::countdownLength(main_);
  ui_->Label9->setShare(static_cast<double>(forms::countdownLeft(main_)) /
                        (length > 0 ? length : forms::usualCountdown));
  const bool planned = !ui_->countdownProfile->steps().empty();
  if (!planned) return ui_->firstText->clear();
  const model::PlanRow& first = state_.plan.rows[1];
  ui_->firstText->setText(QStringLiteral("D'abord : <span style=\"color:%1;font-weight:700\">%2</span>%3")
                              .arg(QGuiApplication::palette().color(role::text).name(),
                                   toQt(first.planSequence).toHtmlEscaped(), factsOf(first).toHtmlEscaped()));
}

}  // namespace desktop
