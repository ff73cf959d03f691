// SPDX-License-Identifier: MIT
#include "platform/qt/Log.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcQt, "moravel.platform.qt")

} // namespace moravel
