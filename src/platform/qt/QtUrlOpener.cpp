// SPDX-License-Identifier: MIT
#include "platform/qt/QtUrlOpener.h"

#include "platform/qt/Log.h"

#include <QDesktopServices>
#include <QUrl>

namespace moravel {

namespace {

// Addresses come from outside too: a file or a command must not be opened by one.
bool isForOtherPrograms(const QUrl &url)
{
    const QString scheme = url.scheme();
    return scheme == u"http" || scheme == u"https" || scheme == u"mailto";
}

} // namespace

void QtUrlOpener::open(const QString &url)
{
    const QUrl address(url, QUrl::TolerantMode);
    if (!isForOtherPrograms(address) || !QDesktopServices::openUrl(address))
        qCInfo(lcQt) << "not opened:" << url.left(200) << address.errorString();
}

} // namespace moravel
