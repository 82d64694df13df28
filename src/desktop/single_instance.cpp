#include "desktop/single_instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <utility>

namespace desktop {
namespace {

constexpr int patience = 1000;  // ms

QString addressOf(const QString& programFolder) {
  const QString known = QDir(programFolder).canonicalPath();
  const QString key =
      QString::number(getuid()) + u'\n' + (known.isEmpty() ? QDir::cleanPath(programFolder) : known);
  const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
  const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  const QString folder = runtime.isEmpty() ? QDir::tempPath() : runtime;
  return folder + QStringLiteral("/ventoria-") + QString::fromLatin1(hash);
}

}  // namespace

SingleInstance::SingleInstance(const QString& programFolder, std::function<void(QString)> woken)
    : address_(addressOf(programFolder)),
      woken_(std::move(woken)),
      lock_(address_ + QStringLiteral(".lock")) {
  lock_.setStaleLockTime(0);  // the lock never expires, since a ride lasts for hours
  // A folder that takes no lock file must not keep the program from starting.
  first_ = lock_.tryLock() || lock_.error() != QLockFile::LockFailedError;
  if (first_) listen();
}

void SingleInstance::listen() {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
      const auto read = [this, socket] {
        woken_(QString::fromUtf8(socket->readAll()));
        socket->deleteLater();
      };
      if (socket->state() == QLocalSocket::UnconnectedState) {
        read();
      } else {
        QObject::connect(socket, &QLocalSocket::disconnected, &server_, read);
      }
    }
  });
  QLocalServer::removeServer(address_);  // left by a program that has crashed
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(address_);
}

bool SingleInstance::wakeFirst(const QString& text) const {
  QLocalSocket socket;
  socket.connectToServer(address_, QLocalSocket::WriteOnly);
  if (!socket.waitForConnected(patience)) return false;
  socket.write(text.toUtf8());
  while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(patience)) {
  }
  socket.disconnectFromServer();
  return socket.bytesToWrite() == 0;
}

}  // namespace desktop
