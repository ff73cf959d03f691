// SPDX-License-Identifier: MIT
#include "service/SourceList.h"

#include "platform/Files.h"
#include "service/Decoding.h"
#include "service/Logging.h"
#include "store/Folders.h"

namespace moravel {

SourceNames parseSources(const QString &text)
{
    constexpr int MostSources = 1000;
    SourceNames names;
    for (const QString &line : text.split(u'\n')) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() < 2 || names.size() >= MostSources)
            break;
        names.insert(fields[1], fields[0]);
    }
    return names;
}

SourceList::SourceList(const HeldFetch &fetch, ServiceUrls urls, Files &files, Folders &folders,
                       SourceNames &sourceNames)
    : m_fetch(fetch)
    , m_urls(std::move(urls))
    , m_files(files)
    , m_folders(folders)
    , m_sourceNames(sourceNames)
{ }

void SourceList::getSources(const Then &then)
{
    m_fetch.get(m_urls.sources(), httplimits::Text, [this, then](const FetchResult &result) {
        QString text;
        if (result)
            text = decodedUtf8(*result).value_or(QString()).trimmed();
        else
            qCInfo(lcService) << "sources list:" << result.error().description;
        if (text.isEmpty())
            text = readSourcesData().trimmed();
        else
            saveSourcesData(text);
        m_sourceNames = parseSources(text);
        run(then);
    });
}

void SourceList::saveSourcesData(const QString &text)
{
    const QString path = m_folders.sourcesFile();
    if (path.isEmpty())
        return;
    const QByteArray bytes = text.toUtf8();
    if (const auto written = m_files.writeAtomically(path, {std::string_view(bytes)}); !written)
        qCInfo(lcService) << "sources file:" << written.error().path << written.error().description;
}

QString SourceList::readSourcesData() const
{
    const QString path = m_folders.sourcesFile();
    if (path.isEmpty() || !m_files.exists(path))
        return {};
    const auto file = m_files.open(path);
    if (!file) {
        qCInfo(lcService) << "sources file:" << file.error().path << file.error().description;
        return {};
    }
    const std::string_view bytes = (*file)->bytes();
    return decodedUtf8(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())))
        .value_or(QString());
}

} // namespace moravel
