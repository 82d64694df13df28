#include "desktop/desktop_wishes.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDebug>

namespace desktop {

using widgets::ThemeMode;

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";
constexpr int patience = 500;  // ms; a portal that hangs must not hold up the start

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString kde = QStringLiteral("org.kde.kdeglobals.KDE");

}  // namespace

DesktopWishes::DesktopWishes(const QDBusConnection& bus) {
  if (!bus.isConnected() || !read(bus)) {
    qWarning().noquote() << "Pas de portail du bureau : couleurs et animations sont celles d'origine.";
  }
}

bool DesktopWishes::read(QDBusConnection bus) {
  qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
  qRegisterMetaType<QDBusVariant>();  // needed for the slot's type
  // QtDBus finds a slot only by its signature without blanks.
  const QByteArray slot =
      QMetaObject::normalizedSignature(SLOT(changeSetting(QString, QString, QDBusVariant)));
  bus.connect({}, path, interface, QStringLiteral("SettingChanged"), this, slot.constData());
  QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
  call << QStringList{appearance, gnome, kde};
  const QDBusMessage answer = bus.call(call, QDBus::Block, patience);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  settings_ = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().constFirst());
  return true;
}

std::optional<ThemeMode> DesktopWishes::colours() const {
  switch (settings_.value(appearance).value(QStringLiteral("color-scheme")).toUInt()) {
    case 1:
      return ThemeMode::Dark;
    case 2:
      return ThemeMode::Light;
    default:
      return std::nullopt;
  }
}

bool DesktopWishes::animations() const {
  const QVariant pace = settings_.value(kde).value(QStringLiteral("AnimationDurationFactor"));
  if (pace.isValid()) return pace.toDouble() > 0;
  return settings_.value(gnome).value(QStringLiteral("enable-animations"), true).toBool();
}

void DesktopWishes::changeSetting(const QString& group, const QString& key, const QDBusVariant& value) {
  settings_[group][key] = value.variant();
  emit changed();
}

}  // namespace desktop
