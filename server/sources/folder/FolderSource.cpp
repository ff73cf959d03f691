// SPDX-License-Identifier: MIT
#include "server/sources/folder/FolderSource.h"

#include "server/core/Fitting.h"
#include "server/core/Jpeg.h"

#include <QFileInfo>

namespace moravel::server {

namespace {

constexpr qint64 mostPixels = 64'000'000; ///< 256 MB when decoded.
constexpr qint64 mostBytes = 512'000'000;

Unavailable notAPicture()
{
    return {Reason::NotAPicture,
            QStringLiteral("That day's file is not a picture that can be shown.")};
}

QByteArray typeOf(const QString &name)
{
    const QByteArray extension = QFileInfo(name).suffix().toLower().toLatin1();
    if (extension == "jpg")
        return "image/jpeg";
    return "image/" + (extension == "tif" ? QByteArray("tiff") : extension);
}

/// Tells two states of a file apart.
QString revisionOf(const QString &name, const QFile &file)
{
    return QStringLiteral("%1/%2/%3")
        .arg(name)
        .arg(file.size())
        .arg(file.fileTime(QFileDevice::FileModificationTime).toMSecsSinceEpoch());
}

} // namespace

FolderSource::FolderSource(FolderSetup setup, RenderCache &cache)
    : m_setup(std::move(setup)), m_cache(cache), m_listing(m_setup.path)
{ }

tl::expected<FolderSource::Day, Unavailable> FolderSource::openOn(QDate date) const
{
    const auto names = m_listing.names();
    if (names->isEmpty())
        return tl::unexpected(
            Unavailable{Reason::NothingThatDay, QStringLiteral("The folder holds no pictures.")});
    const qint64 day = QDate(1970, 1, 1).daysTo(date);
    const qint64 count = names->size();
    const QString &name = names->at((day % count + count) % count);
    const auto file = openPlainFile(m_setup.path + u'/' + name);
    if (!file)
        return tl::unexpected(notAPicture());
    return Day{name, file};
}

tl::expected<FolderSource::Facts, Unavailable> FolderSource::factsOf(const QString &name,
                                                                     QFile &file) const
{
    const QByteArray key = name.toUtf8();
    const QString revision = revisionOf(name, file);
    if (auto known = m_facts.find(key); known && known->revision == revision)
        return *std::move(known);
    Facts facts{revision, shownSize(file), {}};
    const qint64 pixels = qint64(facts.size.width()) * facts.size.height();
    if (!facts.size.isValid() || pixels == 0 || pixels > mostPixels || file.size() > mostBytes)
        return tl::unexpected(notAPicture());
    facts.text = readEmbeddedText(file);
    const qsizetype characters =
        revision.size() + facts.text.title.size() + facts.text.description.size();
    m_facts.put(key, facts, characters * qsizetype(sizeof(QChar)));
    return facts;
}

tl::expected<DayPicture, Unavailable> FolderSource::describe(QDate date) const
{
    const auto open = openOn(date);
    if (!open)
        return tl::unexpected(open.error());
    const auto &[name, file] = *open;
    const auto facts = factsOf(name, *file);
    if (!facts)
        return tl::unexpected(facts.error());
    const QString credit = m_setup.credit.isEmpty() ? m_setup.longName : m_setup.credit;
    DayPicture day;
    day.caption = facts->text.title.isEmpty() ? captionFromName(name) : facts->text.title;
    day.info = facts->text.description;
    day.credit =
        m_setup.licence.isEmpty() ? credit : QStringLiteral("%1, %2").arg(credit, m_setup.licence);
    day.fullSize = facts->size;
    day.fullMegabytes = static_cast<double>(file->size()) / 1e6;
    day.fullSuffix = QLatin1StringView("original.") + QFileInfo(name).suffix().toLower();
    day.isFinal = false;
    return day;
}

tl::expected<Content, Unavailable> FolderSource::picture(QDate date, PictureKind kind) const
{
    const auto open = openOn(date);
    if (!open)
        return tl::unexpected(open.error());
    QFile &file = *open->file;
    if (kind == PictureKind::Full) {
        const QDateTime modified = file.fileTime(QFileDevice::FileModificationTime);
        return Content{{}, open->file, typeOf(open->name), modified};
    }
    return m_cache.picture(cacheName(shortName(), date, kind, revisionOf(open->name, file)),
                           [&] { return encodedJpeg(fittedPicture(file, sizeOf(kind)), kind); });
}

} // namespace moravel::server
