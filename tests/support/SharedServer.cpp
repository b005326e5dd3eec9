#include "support/SharedServer.h"

#include "support/TestFolder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <unistd.h>

namespace test
{
namespace
{

QString folder()
{
    return sharedFolder() + QStringLiteral("/servers");
}

QString noticeFor(pid_t run)
{
    return folder() + u'/' + QString::number(run);
}

/// The process that started this one; 0 when there is none, or none that may be seen.
pid_t parentOf(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    // "12 (any name) S 11 ...": the name may hold blanks and brackets, what follows it does not.
    const QByteArray line = file.readAll();
    return line.mid(line.lastIndexOf(')') + 1).simplified().split(' ').value(1).toInt();
}

/// What the notice says, while whoever wrote it lives.
std::optional<SharedServer> read(const QString& notice)
{
    const Descriptor file(open(QFile::encodeName(notice).constData(), O_RDONLY | O_CLOEXEC));
    if (file.number() < 0 || flock(file.number(), LOCK_SH | LOCK_NB) == 0) {
        return std::nullopt;
    }
    std::array<char, 64> text{};
    const ssize_t length = ::read(file.number(), text.data(), text.size());
    const QList<QByteArray> words =
        QByteArray(text.data(), length < 0 ? 0 : length).simplified().split(' ');
    return SharedServer{words.value(0).toUShort(), words.value(1).toInt()};
}

void removeNoticesOfTheDead()
{
    const QDir notices(folder());
    for (const QString& name : notices.entryList(QDir::Files)) {
        if (!read(notices.filePath(name))) {
            QFile::remove(notices.filePath(name));
        }
    }
}

/// The file, written and locked.
int lockedFile(const QByteArray& path, const QByteArray& text)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0 || flock(file, LOCK_EX) != 0 ||
        write(file, text.constData(), static_cast<std::size_t>(text.size())) != text.size()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
    return file;
}

} // namespace

std::optional<SharedServer> SharedServer::of(pid_t run)
{
    return read(noticeFor(run));
}

std::optional<SharedServer> SharedServer::ofThisRun()
{
    for (pid_t process = getppid(); process > 1; process = parentOf(process)) {
        if (const auto server = of(process)) {
            return server;
        }
    }
    return std::nullopt;
}

SharedServerNotice::SharedServerNotice(pid_t run, SharedServer server)
    : m_file(noticeFor(run)), m_locked([&] {
          QDir().mkpath(folder());
          removeNoticesOfTheDead();
          // Not to be seen before it says all and is locked.
          return lockedFile(QFile::encodeName(m_file + QStringLiteral(".new")),
                            QByteArray::number(server.port) + ' ' +
                                QByteArray::number(server.keeper) + '\n');
      }())
{
    const QByteArray unseen = QFile::encodeName(m_file + QStringLiteral(".new"));
    if (std::rename(unseen.constData(), QFile::encodeName(m_file).constData()) != 0) {
        throw std::runtime_error("cannot write " + m_file.toStdString());
    }
}

SharedServerNotice::~SharedServerNotice()
{
    QFile::remove(m_file);
}

} // namespace test
