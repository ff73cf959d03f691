// SPDX-License-Identifier: MIT
#pragma once

#include "app/ShareSide.h"
#include "platform/Platform.h"
#include "platform/linux/PosixFiles.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDefaults.h"
#include "platform/qt/QtHttp.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtRandom.h"
#include "platform/qt/QtUrlOpener.h"

namespace moravel::bench {

/// The platform that users have; the folders follow HOME and the XDG variables.
struct RealPlatform
{
    QtMainLoop loop;
    QtHttp http;
    QtDefaults defaults;
    PosixFiles files;
    QtAlerts alerts;
    QtImages images;
    QtRandom random;
    QtUrlOpener urls;
    QtClipboard clipboard;

    Platform lend() { return {loop, http, defaults, files, alerts, images, random}; }

    /// @p service: address of the service.
    ShareSetup shareSetup(const QString &service)
    {
        return {urls, clipboard, {{}, {}, service}, {}, {}};
    }
};

} // namespace moravel::bench
