// SPDX-License-Identifier: MIT
#include "platform/linux/session/AutostartEntry.h"

#include "platform/linux/session/AutostartText.h"
#include "platform/linux/session/ProgramName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace moravel {

namespace {

constexpr qint64 LongestEntry = 64 * 1024; // bytes

QStringList standardFolders()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString &folder : folders)
        folder += QLatin1String("/autostart");
    return folders;
}

QString entryIn(const QString &folder)
{
    return folder + u'/' + ProgramName + QLatin1String(".desktop");
}

QString readEntry(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(LongestEntry)) : QString();
}

tl::expected<void, QString> writeEntry(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        return tl::unexpected(file.errorString());
    return {};
}

tl::expected<void, QString> removeEntry(const QString &path)
{
    QFile file(path);
    if (file.exists() && !file.remove())
        return tl::unexpected(file.errorString());
    return {};
}

} // namespace

AutostartEntry::AutostartEntry(QStringList command, QStringList folders)
    : m_command(std::move(command))
    , m_folders(folders.isEmpty() ? standardFolders() : std::move(folders))
{ }

QString AutostartEntry::systemEntry() const
{
    for (const QString &folder : m_folders.mid(1)) {
        if (const QString path = entryIn(folder); QFile::exists(path))
            return readEntry(path);
    }
    return {};
}

bool AutostartEntry::isOn() const
{
    const QString own = entryIn(m_folders.value(0));
    return startsWithSession(QFile::exists(own) ? readEntry(own) : systemEntry());
}

// The user's entry goes where nothing stands behind it, but is left, marked, where it hides one.
void AutostartEntry::setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done)
{
    const QString own = entryIn(m_folders.value(0));
    const QString system = systemEntry();
    const QString before = QFile::exists(own) ? readEntry(own) : system;
    if (!on && system.isEmpty())
        done(removeEntry(own));
    else
        done(writeEntry(own, changedAutostart(before, on, m_command)));
}

QStringList commandOfThisProgram(const QStringList &arguments)
{
    const QString image = qEnvironmentVariable("APPIMAGE"); // what is mounted goes with us
    const QString path = image.isEmpty() ? QCoreApplication::applicationFilePath() : image;
    const QString name = QFileInfo(path).fileName();
    const QString found = QStandardPaths::findExecutable(name);
    const bool byName = !found.isEmpty()
        && QFileInfo(found).canonicalFilePath() == QFileInfo(path).canonicalFilePath();
    return QStringList{byName ? name : path} + arguments;
}

} // namespace moravel
