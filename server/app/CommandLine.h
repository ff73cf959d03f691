// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Config.h"

#include <QStringList>

namespace moravel::server {

/// How the program ends before it has begun: what to print, where, and with which status.
struct EarlyEnd
{
    QString text;
    int status = 0; ///< 0: asked for; 1: cannot run; 2: misused.
};

/// The settings from the command line @p arguments (the program's name first) and the configuration
/// file that it may name; the command line wins.
tl::expected<Config, EarlyEnd> readCommandLine(const QStringList &arguments);

} // namespace moravel::server
