// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/DesktopLog.h"

namespace moravel {
Q_LOGGING_CATEGORY(desktopsLog, "moravel.desktops")
}
