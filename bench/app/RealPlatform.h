// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "platform/linux/PosixFiles.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtDefaults.h"
#include "platform/qt/QtHttp.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtRandom.h"

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

    Platform lend() { return {loop, http, defaults, files, alerts, images, random}; }
};

} // namespace moravel::bench
