#include "desktop/dbus_screen_saver.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDebug>
#include <utility>

namespace desktop {
namespace {

constexpr int screenSaverPatience = 300;  // ms
constexpr qint64 absence = 60'000;        // ms until a missing saver is looked for again

const QString screenSaverService = QStringLiteral("org.freedesktop.ScreenSaver");

QDBusMessage saverCall(const QString& method, const QVariantList& arguments) {
  auto call = QDBusMessage::createMethodCall(
      screenSaverService, QStringLiteral("/org/freedesktop/ScreenSaver"), screenSaverService, method);
  call.setArguments(arguments);
  return call;
}

}  // namespace

DbusScreenSaver::DbusScreenSaver(QDBusConnection bus) : bus_(std::move(bus)) {}

QString DbusScreenSaver::owner() {
  if (!bus_.isConnected()) {
    tellOfAbsence();
    return {};
  }
  if (absentSince_.isValid() && !absentSince_.hasExpired(absence)) return {};
  auto question = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"));
  question.setArguments({screenSaverService});
  const QDBusReply<QString> answer = bus_.call(question, QDBus::Block, screenSaverPatience);
  if (answer.isValid()) {
    absentSince_.invalidate();
    return answer.value();
  }
  absentSince_.start();
  tellOfAbsence();
  return {};
}

void DbusScreenSaver::tellOfAbsence() {
  if (std::exchange(told_, true)) return;
  qWarning().noquote() << "Pas d'écran de veille à retenir : l'écran peut s'éteindre pendant une séance.";
}

bool DbusScreenSaver::active() {
  const QString now = owner();
  if (now != holder_) cookie_.reset();
  return !now.isEmpty() && !cookie_;
}

void DbusScreenSaver::setActive(bool active) {
  if (active) {
    if (cookie_) bus_.send(saverCall(QStringLiteral("UnInhibit"), {*cookie_}));
    cookie_.reset();
    return;
  }
  const QString now = owner();
  if (now.isEmpty() || (cookie_ && now == holder_)) return;
  const QDBusReply<quint32> answer =
      bus_.call(saverCall(QStringLiteral("Inhibit"),
                          {QStringLiteral("Ventoria"), QStringLiteral("Séance d'entraînement en cours")}),
                QDBus::Block, screenSaverPatience);
  if (answer.isValid()) {
    cookie_ = answer.value();
    holder_ = now;
  } else {
    absentSince_.start();  // a saver that refuses or hangs counts as missing for a while
  }
}

}  // namespace desktop
