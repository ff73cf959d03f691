// SPDX-License-Identifier: MIT
#include "share/Sharing.h"

#include "platform/Texts.h"
#include "share/Logging.h"

#include <QPointer>

namespace moravel {

Sharing::Sharing(UrlOpener &urls, Clipboard &clipboard, Preferences &preferences,
                 const Dates &dates, ShareAddresses addresses, SharePorts ports)
    : m_urls(urls)
    , m_clipboard(clipboard)
    , m_preferences(preferences)
    , m_dates(dates)
    , m_addresses(std::move(addresses))
    , m_ports(std::move(ports))
{ }

void Sharing::withPage(ThumbView &cell, const QString &failure,
                       std::function<void(const SharedPicture &)> share)
{
    const SharedPicture picture(cell);
    if (!picture.page.isEmpty()) {
        share(picture);
        return;
    }
    const auto found = [this, cell = QPointer(&cell), picture, failure,
                        share = std::move(share)](const QString &page) {
        SharedPicture complete = picture;
        complete.page = page;
        // By now the cell may be gone or show another picture.
        if (cell && cell->shortSourceName() == picture.shortSourceName
            && cell->dateString() == picture.dateString)
            cell->setParentPath(page);
        if (page.isEmpty())
            m_ports.warn(failure, Texts::tr("The original web page could not be found."));
        else
            share(complete);
    };
    m_ports.findPage(picture.shortSourceName, m_dates.shortDateFromLocalDate(picture.dateString),
                     found);
}

void Sharing::shareFacebook(ThumbView &currentThumb)
{
    withPage(currentThumb, Texts::tr("Sorry, that picture could not be posted on Facebook."),
             [this](const SharedPicture &picture) { pageIsFound(picture); });
}

void Sharing::pageIsFound(const SharedPicture &picture)
{
    m_clipboard.setText(clipboardText(picture));
    if (m_preferences.readFacebook()) {
        postToFacebook(picture);
        return;
    }
    m_preferences.saveFacebook(true);
    m_ports.inform(
        Texts::tr("You will now be taken to your web browser with a link that will allow you to "
                  "share this picture on Facebook.\n\nMore information about the picture is in "
                  "the clipboard for pasting into the Facebook messsage area.\n"),
        Texts::tr("This message will not be shown again."),
        [this, picture] { postToFacebook(picture); });
}

void Sharing::postToFacebook(const SharedPicture &picture)
{
    m_urls.open(facebookUrl(m_addresses.facebookHost, picture));
}

void Sharing::shareTwitter(ThumbView &currentThumb)
{
    withPage(currentThumb, Texts::tr("Sorry, that picture could not be posted on Twitter."),
             [this](const SharedPicture &picture) {
                 m_urls.open(twitterUrl(m_addresses.twitterHost, picture));
             });
}

void Sharing::shareEmail(ThumbView &currentThumb)
{
    withPage(currentThumb, Texts::tr("Sorry, that picture could not be shared via email."),
             [this](const SharedPicture &picture) {
                 const QString url = emailUrl(m_addresses.home, picture);
                 qCInfo(lcShare).noquote() << "EmailURL:" << url;
                 m_urls.open(url);
             });
}

} // namespace moravel
