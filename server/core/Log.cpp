// SPDX-License-Identifier: MIT
#include "server/core/Log.h"

namespace moravel::server {
Q_LOGGING_CATEGORY(serverLog, "moravel.server", QtInfoMsg)
} // namespace moravel::server
