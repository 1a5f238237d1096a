#include "platform/host/OneProgram.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace kinalyx {

namespace {

/// A wish is a few paths: what claims to be more comes from somebody else.
constexpr qint64 kMostBytes = 4 * 1024 * 1024;
constexpr int kRetryMs = 50;
constexpr char kTaken = '+';
constexpr auto kFormat = QDataStream::Qt_6_0;

QByteArray Packed(const StartWish& wish) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(kFormat);
  QList<QByteArray> paths;
  for (const std::string& path : wish.paths) paths << QByteArray::fromStdString(path);
  stream << QByteArray::fromStdString(wish.token) << paths;
  return bytes;
}

StartWish Unpacked(const QByteArray& token, const QList<QByteArray>& paths) {
  StartWish wish{.paths = {}, .token = token.toStdString()};
  for (const QByteArray& path : paths) wish.paths.push_back(path.toStdString());
  return wish;
}

}  // namespace

struct OneProgram::State {
  int lock = -1;
  bool others = false;  ///< another program holds the lock
  QString socket;
  std::unique_ptr<QLocalServer> server;
  std::vector<StartWish> waiting;  ///< until somebody serves
  std::function<void(const StartWish&)> take;

  void Listen() {
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    // What lies there is from a program that has gone: this one has the lock.
    QLocalServer::removeServer(socket);
    server->listen(socket);
    QObject::connect(server.get(), &QLocalServer::newConnection, server.get(), [this] {
      while (QLocalSocket* line = server->nextPendingConnection()) Answer(line);
    });
  }

  void Answer(QLocalSocket* line) {
    QObject::connect(line, &QLocalSocket::disconnected, line, &QObject::deleteLater);
    const auto read = [this, line] {
      if (line->bytesAvailable() > kMostBytes) return line->abort();
      QDataStream stream(line);
      stream.setVersion(kFormat);
      stream.startTransaction();
      QByteArray token;
      QList<QByteArray> paths;
      stream >> token >> paths;
      if (!stream.commitTransaction()) return;
      line->write(&kTaken, 1);
      line->flush();
      line->disconnectFromServer();
      const StartWish wish = Unpacked(token, paths);
      if (take) take(wish);
      else waiting.push_back(wish);
    };
    QObject::connect(line, &QLocalSocket::readyRead, line, read);
    if (line->bytesAvailable()) read();
  }
};

OneProgram::OneProgram(const std::string& key) : state_(std::make_unique<State>()) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) return;
  const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(key), QCryptographicHash::Sha1).toHex();
  state_->socket = folder + "/kinalyx-" + QString::fromLatin1(hash.left(16));
  state_->lock = ::open((state_->socket + ".lock").toLocal8Bit().constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (state_->lock < 0) return;
  state_->others = ::flock(state_->lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (!state_->others) state_->Listen();
}

OneProgram::~OneProgram() { Release(); }

bool OneProgram::First() const { return !state_->others; }

OneProgram::Told OneProgram::Tell(const StartWish& wish, int milliseconds) const {
  QElapsedTimer clock;
  clock.start();
  const auto left = [&] { return static_cast<int>(milliseconds - clock.elapsed()); };
  // The first may have the lock and not listen yet.
  do {
    QLocalSocket line;
    line.connectToServer(state_->socket);
    if (line.waitForConnected(std::max(1, left()))) {
      const QByteArray bytes = Packed(wish);
      line.write(bytes);
      // A wish that has left may be taken late: it must not be sent twice.
      while (line.bytesToWrite() && left() > 0) line.waitForBytesWritten(std::max(1, left()));
      char answer = 0;
      if (line.waitForReadyRead(std::max(1, left())) && line.getChar(&answer) && answer == kTaken) return Told::Taken;
      if (left() <= 0) return Told::NoAnswer;
    }
    QThread::msleep(kRetryMs);
  } while (left() > 0);
  return Told::NoAnswer;
}

void OneProgram::Serve(std::function<void(const StartWish&)> take) {
  state_->take = std::move(take);
  for (const StartWish& wish : std::exchange(state_->waiting, {})) state_->take(wish);
}

void OneProgram::Release() {
  state_->server.reset();
  if (state_->lock >= 0) ::close(std::exchange(state_->lock, -1));
}

}  // namespace kinalyx
