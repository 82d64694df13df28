// The desktop's wishes for every program, read from its settings portal: dark or light windows, and whether
// animations are welcome. Without a portal it has none.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>
#include <optional>

#include "widgets/theme.h"

namespace desktop {

class DesktopWishes final : public QObject {
  Q_OBJECT
 public:
  explicit DesktopWishes(const QDBusConnection& bus = QDBusConnection::sessionBus());
  [[nodiscard]] std::optional<widgets::ThemeMode> colours() const;
  [[nodiscard]] bool animations() const;

 signals:
  void changed();

 private slots:
  void changeSetting(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  // False: no portal answers.
  bool read(QDBusConnection bus);

  QMap<QString, QVariantMap> settings_;
};

}  // namespace desktop
