// SPDX-License-Identifier: MIT
#pragma once

#include "service/HeldFetch.h"
#include "service/ServiceUrls.h"
#include "service/Then.h"

#include <optional>

namespace moravel {

class Files;
class Folders;

/// A news text as it is shown: its first line, and the rest.
struct NewsSheet
{
    QString title;
    QString body;
    bool operator==(const NewsSheet &) const = default;
};

/// Splits a news text. Every occurrence of the title leaves the body.
NewsSheet newsSheet(const QString &news);

/// The window as the news see it; must be there before the news are used.
struct NewsPorts
{
    std::function<void(bool visible)> showButton;
    std::function<void(const NewsSheet &)> showSheet;
    /// Says that there is nothing to show.
    std::function<void()> showNone;
};

/// The announcements of the service. What the user has read last is kept in a file; another text, or none
/// because the service does not answer, makes the button show.
class News
{
public:
    News(const HeldFetch &fetch, MainLoop &loop, ServiceUrls urls, Files &files, Folders &folders);

    void setPorts(NewsPorts ports) { m_ports = std::move(ports); }

    /// Fetches the news and shows the button when they are unread; never hides it.
    void loadNews(const Then &then = {});

    /// Shows the news and marks them as read.
    void showNews();

    /// The news that the user has read last; empty when there are none.
    QString readNewsData() const;

private:
    void show();

    const HeldFetch &m_fetch;
    MainLoop &m_loop;
    ServiceUrls m_urls;
    Files &m_files;
    Folders &m_folders;
    NewsPorts m_ports;
    /// The trimmed text as last fetched, "" before; nothing when the last fetch failed.
    std::optional<QString> m_newsString = QString();
};

} // namespace moravel
