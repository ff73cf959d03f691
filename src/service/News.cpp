// SPDX-License-Identifier: MIT
#include "service/News.h"

#include "platform/Files.h"
#include "service/Decoding.h"
#include "service/Logging.h"
#include "store/Folders.h"

namespace moravel {

NewsSheet newsSheet(const QString &news)
{
    QString title = news.section(u'\n', 0, 0);
    if (title.endsWith(u'\r'))
        title.chop(1);
    QString body = news;
    if (!title.isEmpty())
        body.remove(title);
    return {title, body.trimmed()};
}

News::News(const HeldFetch &fetch, MainLoop &loop, ServiceUrls urls, Files &files, Folders &folders)
    : m_fetch(fetch), m_loop(loop), m_urls(std::move(urls)), m_files(files), m_folders(folders)
{ }

void News::loadNews(const Then &then)
{
    m_fetch.get(m_urls.news(m_loop.now()), httplimits::Text,
                [this, then](const FetchResult &result) {
                    m_newsString.reset();
                    if (!result)
                        qCInfo(lcService) << "news:" << result.error().description;
                    else if (const auto text = decodedUtf8(*result))
                        m_newsString = text->trimmed();
                    else
                        qCInfo(lcService) << "news: not UTF-8";
                    if (!m_newsString || *m_newsString != readNewsData())
                        m_ports.showButton(true);
                    run(then);
                });
}

QString News::readNewsData() const
{
    const QString path = m_folders.moravelNewsFile();
    if (path.isEmpty() || !m_files.exists(path))
        return {};
    const auto file = m_files.open(path);
    if (!file) {
        qCInfo(lcService) << "news file:" << file.error().path << file.error().description;
        return {};
    }
    const std::string_view bytes = (*file)->bytes();
    return decodedUtf8(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())))
        .value_or(QString());
}

void News::showNews()
{
    if (!m_newsString || !m_newsString->isEmpty())
        show();
    else
        loadNews([this] { show(); });
}

void News::show()
{
    if (m_newsString && m_newsString->isEmpty()) {
        m_ports.showNone();
        return;
    }
    const QString path = m_folders.moravelNewsFile();
    if (!path.isEmpty() && m_newsString) { // after a failed fetch nothing new was read
        const QByteArray bytes = m_newsString->toUtf8();
        if (const auto written = m_files.writeAtomically(path, {std::string_view(bytes)}); !written)
            qCInfo(lcService) << "news file:" << written.error().path
                              << written.error().description;
    }
    m_ports.showButton(false);
    m_ports.showSheet(newsSheet(m_newsString.value_or(QString())));
}

} // namespace moravel
