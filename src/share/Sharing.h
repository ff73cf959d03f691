// SPDX-License-Identifier: MIT
#pragma once

#include "base/Dates.h"
#include "base/Preferences.h"
#include "platform/Clipboard.h"
#include "platform/UrlOpener.h"
#include "share/ShareTexts.h"

#include <functional>

namespace moravel {

/// Where pictures are shared.
struct ShareAddresses
{
    QString facebookHost;
    QString twitterHost;
    QString home; ///< The product's own address, named in mails.
};

/// What sharing needs of its neighbours.
struct SharePorts
{
    /// Asks the service for the original page of a source and Short date; gives "" when there is none.
    /// Nothing of the program's own sequence happens until it has been dealt with.
    std::function<void(const QString &shortSource, const QString &day,
                       std::function<void(const QString &page)> done)>
        findPage;
    /// Warns in a sheet on the main window.
    std::function<void(const QString &message, const QString &text)> warn;
    /// Informs in a sheet on the large picture window; @p ended comes when it is dismissed.
    std::function<void(const QString &message, const QString &text, std::function<void()> ended)>
        inform;
};

/// Hands a picture's original page, with a few words, to the web browser or the mail program.
class Sharing
{
public:
    /// All references must outlive this object.
    Sharing(UrlOpener &urls, Clipboard &clipboard, Preferences &preferences, const Dates &dates,
            ShareAddresses addresses, SharePorts ports);

    // The commands, on the cell whose large picture is shown.
    void shareFacebook(ThumbView &currentThumb);
    void shareTwitter(ThumbView &currentThumb);
    void shareEmail(ThumbView &currentThumb);

private:
    void withPage(ThumbView &cell, const QString &failure,
                  std::function<void(const SharedPicture &)> share);
    void pageIsFound(const SharedPicture &picture);
    void postToFacebook(const SharedPicture &picture);

    UrlOpener &m_urls;
    Clipboard &m_clipboard;
    Preferences &m_preferences;
    const Dates &m_dates;
    ShareAddresses m_addresses;
    SharePorts m_ports;
};

} // namespace moravel
