// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"
#include "platform/DefaultPrograms.h"
#include "platform/Defaults.h"
#include "platform/Files.h"
#include "platform/Http.h"
#include "platform/Images.h"
#include "platform/MainLoop.h"
#include "platform/Random.h"
#include "platform/Trash.h"

namespace moravel {

/// Every touch of the operating system, lent to the application for its whole life.
struct Platform
{
    MainLoop &loop;
    HttpClient &http;
    Defaults &defaults;
    Files &files;
    Alerts &alerts;
    Images &images;
    Random &random;
    Trash *trash = nullptr; ///< Null where pictures cannot be deleted.
    DefaultPrograms *programs = nullptr; ///< Null where they are not known.
};

} // namespace moravel
