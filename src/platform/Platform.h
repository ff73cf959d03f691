// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"
#include "platform/Autostart.h"
#include "platform/DefaultPrograms.h"
#include "platform/Defaults.h"
#include "platform/Files.h"
#include "platform/Http.h"
#include "platform/Images.h"
#include "platform/MainLoop.h"
#include "platform/Random.h"
#include "platform/Surroundings.h"
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
    Surroundings *surroundings = nullptr; ///< Null where nothing is known of them.
    Autostart *autostart = nullptr; ///< Null where the session cannot start the program.
};

} // namespace moravel
