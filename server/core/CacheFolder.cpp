// SPDX-License-Identifier: MIT
#include "server/core/CacheFolder.h"

#include "server/core/Jpeg.h"
#include "server/core/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace moravel::server {

namespace {

bool isCacheName(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[a-z]{1,32}-[0-9]{8}-[0-9]{1,2}-[0-9a-f]{16}\\.jpg\\z"));
    return form.match(name.left(100)).hasMatch();
}

struct Entry
{
    QString path;
    qint64 size = 0;
    QDateTime lastUse;
};

std::vector<Entry> storedPictures(const QString &folder)
{
    std::vector<Entry> entries;
    const auto infos = QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &info : infos) {
        if (isCacheName(info.fileName()))
            entries.push_back({info.filePath(), info.size(), info.lastRead()});
    }
    return entries;
}

} // namespace

QString cacheName(const QString &shortName, QDate date, PictureKind kind, const QString &revision)
{
    const QByteArray hash = QCryptographicHash::hash(revision.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("%1-%2-%3-%4.jpg")
        .arg(shortName.toLower(), date.toString(QStringLiteral("yyyyMMdd")),
             QString::number(static_cast<int>(kind)), QString::fromLatin1(hash.toHex().left(16)));
}

std::shared_ptr<QFile> openPlainFile(const QString &path)
{
    // Not blocking, lest a pipe put in the place of a picture holds the thread for good.
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return nullptr;

    struct stat info
    { };

    auto file = std::make_shared<QFile>();
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)
        || !file->open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered,
                       QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return nullptr;
    }
    return file;
}

CacheFolder::CacheFolder(QString folder, qint64 maxBytes)
    : m_folder(std::move(folder)), m_maxBytes(maxBytes)
{
    QDir().mkpath(m_folder);
    removeLeftovers();
    makeRoom();
}

std::optional<Content> CacheFolder::open(const QString &name)
{
    const QString path = m_folder + u'/' + name;
    auto file = openPlainFile(path);
    if (!file)
        return std::nullopt;
    if (!isWholeJpeg(*file)) {
        qCInfo(serverLog) << "damaged picture in the cache, made anew:" << path;
        QFile::remove(path);
        return std::nullopt;
    }
    // The time of reading is set by hand: file systems are mounted so as not to keep it.
    const std::array<timespec, 2> times{timespec{0, UTIME_NOW}, timespec{0, UTIME_OMIT}};
    ::futimens(file->handle(), times.data());
    const QDateTime modified = file->fileTime(QFileDevice::FileModificationTime);
    return Content{{}, std::move(file), "image/jpeg", modified};
}

bool CacheFolder::store(const QString &name, const QByteArray &bytes)
{
    if (bytes.size() > m_maxBytes || !isCacheName(name))
        return false;
    const bool written = write(name, bytes);
    const std::lock_guard lock(m_mutex);
    if (!written) {
        if (!std::exchange(m_reported, true))
            qCWarning(serverLog) << "cannot write to the cache, pictures are made at each request:"
                                 << m_folder;
        return false;
    }
    m_total += bytes.size();
    if (m_total > m_maxBytes)
        makeRoom();
    return true;
}

bool CacheFolder::write(const QString &name, const QByteArray &bytes)
{
    QSaveFile file(m_folder + u'/' + name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

void CacheFolder::makeRoom()
{
    std::vector<Entry> entries = storedPictures(m_folder);
    m_total = 0;
    for (const Entry &entry : entries)
        m_total += entry.size;
    if (m_total <= m_maxBytes)
        return;
    std::sort(entries.begin(), entries.end(),
              [](const Entry &a, const Entry &b) { return a.lastUse < b.lastUse; });
    // A tenth is cleared at once so that the folder is not read again at each store.
    const qint64 target = m_maxBytes - m_maxBytes / 10;
    for (std::size_t i = 0; i + 1 < entries.size() && m_total > target; ++i) {
        if (QFile::remove(entries[i].path))
            m_total -= entries[i].size;
    }
}

void CacheFolder::removeLeftovers()
{
    // QSaveFile adds a dot and six characters; an hour spares files that another process is
    // writing.
    constexpr int addedLength = 7;
    const QDateTime old = QDateTime::currentDateTimeUtc().addSecs(-3600);
    const auto infos = QDir(m_folder).entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &info : infos) {
        const QString name = info.fileName();
        if (isCacheName(name.chopped(std::min<qsizetype>(addedLength, name.size())))
            && info.lastModified() < old)
            QFile::remove(info.filePath());
    }
}

} // namespace moravel::server
