// SPDX-License-Identifier: MIT
#include "store/LegacyCaptions.h"

#include "base/Dates.h"
#include "store/Folders.h"
#include "store/Lines.h"
#include "store/Logging.h"
#include "store/MacRoman.h"

#include <QStringList>

namespace moravel {

namespace {

constexpr char lineEnd = '\r';

enum LegacyField { LegacyDate, LegacyLongName, LegacyFile, LegacyCaption, LegacyFieldCount };

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), std::size_t(bytes.size())};
}

} // namespace

LegacyCaptions::LegacyCaptions(Folders &folders, Files &files, const Dates &dates,
                               const QMap<QString, QString> &sourceNames)
    : m_folders(folders), m_files(files), m_dates(dates), m_sourceNames(sourceNames)
{ }

QString LegacyCaptions::path() const
{
    const QString folder = m_folders.moravelFolder();
    return folder.isEmpty() ? QString() : folder + QLatin1String("Moravel-captions.txt");
}

std::unique_ptr<FileBytes> LegacyCaptions::load(const QString &path) const
{
    if (path.isEmpty() || !m_files.exists(path))
        return nullptr;
    auto file = m_files.open(path);
    if (file)
        return std::move(*file);
    qCInfo(lcStore) << "cannot read" << file.error().path << file.error().description;
    return nullptr;
}

QString LegacyCaptions::readOldTextData() const
{
    const auto file = load(path());
    return file ? macroman::decode(file->bytes()) : QString();
}

QString LegacyCaptions::oldStoredDataForFile(const QString &fileName) const
{
    const auto name = macroman::encode(u'\t' + fileName + u'\t');
    const QString folder = m_folders.moravelFolder();
    const auto file = fileName.isEmpty() || !name ? nullptr : load(path());
    const auto line =
        file ? firstLineContaining(file->bytes(), viewOf(*name), lineEnd) : std::nullopt;
    if (!line)
        return {};
    const QStringList fields = macroman::decode(line->in(file->bytes())).split(u'\t');
    if (fields.size() < LegacyFieldCount)
        return {};
    const QString picture = folder + fields[LegacyFile];
    return QStringList{fields[LegacyDate],
                       shortNameOf(fields[LegacyLongName]),
                       picture,
                       picture,
                       QString(),
                       fields[LegacyCaption],
                       QString()}
        .join(u'\t');
}

/// The last of several sources with the same long name wins.
QString LegacyCaptions::shortNameOf(const QString &longName) const
{
    QString found;
    for (auto it = m_sourceNames.begin(); it != m_sourceNames.end(); ++it) {
        if (it.value() == longName)
            found = it.key();
    }
    return found;
}

void LegacyCaptions::deleteOldDataFor(const QString &source, const QString &onShortDate)
{
    const QString longName = m_sourceNames.value(source);
    const QString sqlDate = m_dates.sqlDateFromShortDate(onShortDate);
    if (longName.isEmpty() || sqlDate.isEmpty())
        return;
    // No tab closes the prefix: of two names of which one begins the other, the first in the file goes.
    const auto prefix = macroman::encode(sqlDate + u'\t' + longName);
    const QString file = path();
    const auto old = prefix ? load(file) : nullptr;
    const auto line =
        old ? firstLineStartingWith(old->bytes(), viewOf(*prefix), lineEnd) : std::nullopt;
    if (!line)
        return;
    const std::string kept = withoutLine(old->bytes(), line->in(old->bytes()), lineEnd);
    if (const auto written = m_files.writeAtomically(file, {kept}); !written)
        qCInfo(lcStore) << "cannot write" << written.error().path << written.error().description;
}

} // namespace moravel
