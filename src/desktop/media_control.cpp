#include "desktop/media_control.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QTimer>
#include <cmath>
#include <utility>

#include "forms/main_form_words.h"
#include "widgets/qt_text.h"

namespace desktop {
namespace {

using widgets::toQt;

const QString objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");

qlonglong microseconds(model::TimeValue days) {
  return std::llround(days * model::secondsADay) * 1'000'000;
}

// Free for another program of ours: each has a name of its own then.
QString registerOn(QDBusConnection& bus) {
  QString name = QStringLiteral("org.mpris.MediaPlayer2.ventoria");
  if (bus.registerService(name)) return name;
  name += QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
  return bus.registerService(name) ? name : QString();
}

}  // namespace

MediaControl::MediaControl(app::Program& program, std::function<void()> raise, QDBusConnection bus)
    : main_(program.screens().main),
      state_(program.state()),
      loop_(program.loop()),
      raise_(std::move(raise)),
      bus_(std::move(bus)) {
  new MediaRoot(*this);
  new MediaPlayer(*this);
  if (!bus_.isConnected() || !bus_.registerObject(objectPath, this)) return;
  service_ = registerOn(bus_);
  for (platform::Component* part : std::initializer_list<platform::Component*>{
           &main_.Command7, &main_.MyButton4, &main_.Label11, &main_.Timer1, &main_.Timer2}) {
    part->watch([this](const platform::Component&, platform::Prop) { tellSoon(); });
  }
}

MediaControl::~MediaControl() {
  if (service_.isEmpty()) return;
  bus_.unregisterService(service_);
  bus_.unregisterObject(objectPath);
}

QString MediaControl::status() const {
  if (forms::ridePaused(main_)) return QStringLiteral("Paused");
  return forms::rideUnderWay(main_, state_) ? QStringLiteral("Playing") : QStringLiteral("Stopped");
}

QVariantMap MediaControl::metadata() const {
  if (!state_.plan.started()) return {};
  const QString track =
      QStringLiteral("/ventoria/sequence/%1/%2").arg(state_.seanceCourante).arg(state_.plan.sequenceCourante);
  return {{QStringLiteral("mpris:trackid"), QVariant::fromValue(QDBusObjectPath(track))},
          {QStringLiteral("mpris:length"), microseconds(state_.dureeSequence)},
          {QStringLiteral("xesam:title"), toQt(state_.plan.current().planSequence)},
          {QStringLiteral("xesam:album"), toQt(state_.seanceTitre)},
          {QStringLiteral("xesam:trackNumber"), state_.plan.sequenceCourante}};
}

qlonglong MediaControl::position() const {
  return state_.plan.started() ? microseconds(state_.ecouleSequence) : 0;
}

bool MediaControl::canPause() const {
  return forms::rideUnderWay(main_, state_) && platform::canBeSeen(main_.Command7) &&
         platform::isEnabled(main_.Command7);
}

bool MediaControl::canStop() const {
  return forms::rideUnderWay(main_, state_) && platform::canBeSeen(main_.MyButton4) &&
         platform::isEnabled(main_.MyButton4);
}

// A press that came while a sound blocked the loop is judged when it is served.
void MediaControl::pauseOrResume() {
  loop_.whenFree([this] {
    if (canPause()) main_.Command7.click();
  });
}

void MediaControl::pause() {
  loop_.whenFree([this] {
    if (canPause() && !forms::ridePaused(main_)) main_.Command7.click();
  });
}

void MediaControl::resume() {
  loop_.whenFree([this] {
    if (canPause() && forms::ridePaused(main_)) main_.Command7.click();
  });
}

void MediaControl::stop() {
  loop_.whenFree([this] {
    if (canStop()) main_.MyButton4.click();
  });
}

QVariantMap MediaControl::told() const {
  return {{QStringLiteral("PlaybackStatus"), status()},
          {QStringLiteral("Metadata"), metadata()},
          {QStringLiteral("CanPlay"), canPause()},
          {QStringLiteral("CanPause"), canPause()}};
}

// Once for all that one event of the program changes.
void MediaControl::tellSoon() {
  if (std::exchange(due_, true)) return;
  QTimer::singleShot(0, this, [this] { tellChanges(); });
}

void MediaControl::tellChanges() {
  due_ = false;
  QVariantMap changed;
  const QVariantMap now = told();
  for (auto property = now.begin(); property != now.end(); ++property) {
    if (last_.value(property.key()) != property.value()) changed.insert(property.key(), property.value());
  }
  last_ = now;
  if (changed.isEmpty()) return;
  auto signal = QDBusMessage::createSignal(objectPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                           QStringLiteral("PropertiesChanged"));
  signal.setArguments({playerInterface, changed, QStringList()});
  bus_.send(signal);
}

}  // namespace desktop
