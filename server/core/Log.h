// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace moravel::server {
Q_DECLARE_LOGGING_CATEGORY(serverLog)
} // namespace moravel::server
