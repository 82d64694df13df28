#include "desktop/single_instance.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>
#include <utility>

namespace desktop {
namespace {

constexpr int patience = 1000;    // ms
constexpr qint64 longest = 4096;  // bytes of a path

// Nobody else can reach what lies in such a folder, nor put anything there.
bool isOursAlone(const QString& folder) {
  struct stat status {};
  constexpr mode_t others = S_IRWXG | S_IRWXO;
  return ::lstat(QFile::encodeName(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == getuid() && (status.st_mode & others) == 0;
}

QString addressOf(const QString& programFolder) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (!isOursAlone(folder)) return {};
  const QString known = QDir(programFolder).canonicalPath();
  const QString key =
      QString::number(getuid()) + u'\n' + (known.isEmpty() ? QDir::cleanPath(programFolder) : known);
  const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
  return folder + QStringLiteral("/ventoria-") + QString::fromLatin1(hash);
}

// Not a pipe, which would keep whoever opens it waiting.
bool isPathOfAFile(const QString& text) {
  return text.startsWith(u'/') && QFileInfo(text).isFile();
}

}  // namespace

SingleInstance::SingleInstance(const QString& programFolder, std::function<void(QString)> woken)
    : address_(addressOf(programFolder)),
      woken_(std::move(woken)),
      lock_(address_ + QStringLiteral(".lock")) {
  lock_.setStaleLockTime(0);  // the lock never expires, since a ride lasts for hours
  // What takes no lock file must not keep the program from starting.
  first_ = address_.isEmpty() || lock_.tryLock() || lock_.error() != QLockFile::LockFailedError;
  if (first_ && !address_.isEmpty()) listen();
}

void SingleInstance::listen() {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) hear(*socket);
  });
  QLocalServer::removeServer(address_);  // left by a program that has crashed
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(address_);
}

// Whoever says too much is not listened to, and whoever does not come to an end is cut off.
void SingleInstance::hear(QLocalSocket& socket) {
  socket.setReadBufferSize(longest + 1);
  const auto cutOff = [&socket] {
    socket.disconnect();
    socket.abort();
    socket.deleteLater();
  };
  const auto read = [this, &socket, cutOff] {
    const QByteArray said = socket.readAll();
    cutOff();
    if (said.size() > longest) return;
    const QString text = QString::fromUtf8(said);
    woken_(isPathOfAFile(text) ? text : QString());
  };
  if (socket.state() == QLocalSocket::UnconnectedState) return read();
  QObject::connect(&socket, &QLocalSocket::disconnected, &socket, read);
  QTimer::singleShot(patience, &socket, cutOff);
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
