#include "ui/SingleWindow.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <chrono>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {

namespace {

QString socketFor(const QString &folder)
{
    const QFileInfo info(folder);
    const QString place = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation))
        .filePath(u"quillorent-"_s + QString::fromLatin1(hash.left(16)));
}

/// Whether a window answers that it comes to the front; it is told then what was asked for.
bool raisesOther(const QString &path, const Opening &opening)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(1000) || (socket.bytesAvailable() == 0 && !socket.waitForReadyRead(5000)))
        return false;
    QDataStream stream(&socket);
    stream << opening;
    socket.waitForBytesWritten(5000);
    return true;
}

} // namespace

SingleWindow::SingleWindow(const QString &folder) : m_path(socketFor(folder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleWindow::answer);
}

bool SingleWindow::take(const Opening &opening)
{
    // Of two that start at once, the second looks when the first listens.
    QLockFile turn(m_path + u".lock"_s);
    turn.setStaleLockTime(0);
    turn.tryLock(10'000);

    if (raisesOther(m_path, opening)) return false;
    QLocalServer::removeServer(m_path);
    if (!m_server.listen(m_path))
        qWarning("%s: %s", qUtf8Printable(m_path), qUtf8Printable(m_server.errorString()));
    return true;
}

void SingleWindow::answer()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { listenTo(*socket); });
        socket->write("1");
        socket->flush();
        Q_EMIT raiseRequested();
    }
}

void SingleWindow::listenTo(QLocalSocket &socket)
{
    QDataStream stream(&socket);
    Opening opening;
    stream.startTransaction(); // the rest may be on its way
    stream >> opening;
    if (stream.commitTransaction() && !opening.isEmpty()) Q_EMIT openingRequested(opening);
}

} // namespace ui
