#include "sync/ListFile.h"

#include "files/Names.h"

#include <QCoreApplication>
#include <QFile>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

constexpr int attempts = 1000;

QString reasonFor(const QString &path, const QString &reason)
{
    return Words::tr("The list of what is to be synchronised can't be written to \"%1\": %2.")
        .arg(path, reason);
}

} // namespace

ListFile makeListFile(const QByteArray &content)
{
    QString path;
    int descriptor = -1;
    int error = EEXIST;
    for (int attempt = 0; error == EEXIST && attempt < attempts; ++attempt) {
        path = quillorentLibrary::createTempFileName();
        descriptor = open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                          S_IRUSR | S_IWUSR);
        error = descriptor < 0 ? errno : 0;
        // The name is of a millisecond, and this one's is taken.
        if (error == EEXIST) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (descriptor < 0) return {{}, reasonFor(path, qt_error_string(error))};

    QFile file;
    const bool isWritten = file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) &&
                           file.write(content) == content.size() && file.flush();
    return isWritten ? ListFile{path, {}} : ListFile{{}, reasonFor(path, file.errorString())};
}
