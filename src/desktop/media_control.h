// The ride as the desktop's media controls show and work it (MPRIS 2.2 of freedesktop.org): headset buttons,
// the keyboard's media keys, the lock screen, a paired phone. Play and pause are the ride's pause button,
// stop is its cancel; what is played is the sequence, out of the session. Without a bus there is none of it.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>

#include "app/program.h"

namespace desktop {

class MediaControl final : public QObject {
  Q_OBJECT
 public:
  // `raise` brings the window to the front.
  MediaControl(app::Program& program, std::function<void()> raise,
               QDBusConnection bus = QDBusConnection::sessionBus());
  ~MediaControl() override;

  [[nodiscard]] QString status() const;  // "Playing", "Paused" or "Stopped"
  [[nodiscard]] QVariantMap metadata() const;
  [[nodiscard]] qlonglong position() const;  // µs of the sequence that are ridden
  [[nodiscard]] bool canPause() const;
  [[nodiscard]] bool canStop() const;

  void pauseOrResume();
  void pause();
  void resume();
  void stop();
  void raise() { raise_(); }

 private:
  void tellSoon();
  void tellChanges();
  [[nodiscard]] QVariantMap told() const;

  forms::MainForm& main_;
  const model::SharedState& state_;
  platform::EventLoop& loop_;
  std::function<void()> raise_;
  QDBusConnection bus_;
  QString service_;  // empty without a bus
  QVariantMap last_;
  bool due_ = false;
};

// org.mpris.MediaPlayer2: the program.
class MediaRoot final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
  Q_PROPERTY(bool CanQuit READ never CONSTANT)
  Q_PROPERTY(bool CanRaise READ always CONSTANT)
  Q_PROPERTY(bool HasTrackList READ never CONSTANT)
  Q_PROPERTY(QString Identity READ identity CONSTANT)
  Q_PROPERTY(QString DesktopEntry READ desktopEntry CONSTANT)
  Q_PROPERTY(QStringList SupportedUriSchemes READ none CONSTANT)
  Q_PROPERTY(QStringList SupportedMimeTypes READ none CONSTANT)

 public:
  explicit MediaRoot(MediaControl& control) : QDBusAbstractAdaptor(&control), control_(control) {}
  [[nodiscard]] static bool always() { return true; }
  [[nodiscard]] static bool never() { return false; }
  [[nodiscard]] static QString identity() { return QStringLiteral("Ventoria"); }
  [[nodiscard]] static QString desktopEntry() { return QStringLiteral("ventoria"); }
  [[nodiscard]] static QStringList none() { return {}; }

 public slots:  // NOLINTBEGIN(readability-identifier-naming): the bus's own names
  void Raise() { control_.raise(); }
  void Quit() {}  // not from afar: a ride would be lost
                  // NOLINTEND(readability-identifier-naming)

 private:
  MediaControl& control_;
};

// org.mpris.MediaPlayer2.Player: the ride. There is no going to another sequence, nor inside one.
class MediaPlayer final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
  Q_PROPERTY(QString PlaybackStatus READ status)
  Q_PROPERTY(double Rate READ one WRITE ignore)
  Q_PROPERTY(double MinimumRate READ one)
  Q_PROPERTY(double MaximumRate READ one)
  Q_PROPERTY(double Volume READ one WRITE ignore)
  Q_PROPERTY(QVariantMap Metadata READ metadata)
  Q_PROPERTY(qlonglong Position READ position)
  Q_PROPERTY(bool CanGoNext READ never)
  Q_PROPERTY(bool CanGoPrevious READ never)
  Q_PROPERTY(bool CanPlay READ canPause)
  Q_PROPERTY(bool CanPause READ canPause)
  Q_PROPERTY(bool CanSeek READ never)
  Q_PROPERTY(bool CanControl READ always)

 public:
  explicit MediaPlayer(MediaControl& control) : QDBusAbstractAdaptor(&control), control_(control) {}
  [[nodiscard]] QString status() const { return control_.status(); }
  [[nodiscard]] QVariantMap metadata() const { return control_.metadata(); }
  [[nodiscard]] qlonglong position() const { return control_.position(); }
  [[nodiscard]] bool canPause() const { return control_.canPause(); }
  [[nodiscard]] static double one() { return 1; }
  static void ignore(double) {}
  [[nodiscard]] static bool always() { return true; }
  [[nodiscard]] static bool never() { return false; }

 public slots:  // NOLINTBEGIN(readability-identifier-naming): the bus's own names
  void PlayPause() { control_.pauseOrResume(); }
  void Play() { control_.resume(); }
  void Pause() { control_.pause(); }
  void Stop() { control_.stop(); }
  void Next() {}
  void Previous() {}
  void Seek(qlonglong) {}
  void SetPosition(const QDBusObjectPath&, qlonglong) {}
  void OpenUri(const QString&) {}
  // NOLINTEND(readability-identifier-naming)

 private:
  MediaControl& control_;
};

}  // namespace desktop
