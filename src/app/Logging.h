// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace moravel {

Q_DECLARE_LOGGING_CATEGORY(lcApp) ///< "moravel.app"

} // namespace moravel
