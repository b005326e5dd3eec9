#include "support/TestFolder.h"

#include "support/ProcessLife.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <stdexcept>

namespace test
{
namespace
{

const QString prefix = QStringLiteral("process-");

void removeFoldersOfDeadProcesses()
{
    const QDir shared(sharedFolder());
    for (const QString& name : shared.entryList({prefix + u'*'}, QDir::Dirs)) {
        if (!isAlive(name.mid(prefix.size()).toLongLong())) {
            QDir(shared.filePath(name)).removeRecursively();
        }
    }
}

/// Exists while the process does.
class ProcessFolder
{
public:
    ProcessFolder()
        : m_path(sharedFolder() + u'/' + prefix +
                 QString::number(QCoreApplication::applicationPid()))
    {
        removeFoldersOfDeadProcesses();
        QDir().mkpath(m_path);
    }
    ~ProcessFolder() { QDir(m_path).removeRecursively(); }
    ProcessFolder(const ProcessFolder&) = delete;
    ProcessFolder& operator=(const ProcessFolder&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }

private:
    QString m_path;
};

} // namespace

const QString& processFolder()
{
    static const ProcessFolder folder;
    return folder.path();
}

QString sharedFolder()
{
    return QStringLiteral(TEMPORA_TEST_DATA);
}

QString madeOnce(const QString& name, const std::function<void(const QString& path)>& make)
{
    constexpr int longestWaitMilliseconds = 120000;
    QString finished = sharedFolder() + u'/' + name;
    QDir().mkpath(sharedFolder());
    QLockFile lock(finished + QStringLiteral(".lock"));
    lock.setStaleLockTime(0); // only the maker's death frees it
    if (!lock.tryLock(longestWaitMilliseconds)) {
        throw std::runtime_error("nobody finishes " + finished.toStdString());
    }
    if (!QDir(finished).exists()) {
        const QString unfinished = finished + QStringLiteral(".unfinished");
        QDir(unfinished).removeRecursively();
        make(unfinished);
        QDir().rename(unfinished, finished);
    }
    return finished;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QString& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

} // namespace test
