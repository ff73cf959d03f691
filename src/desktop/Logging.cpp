// SPDX-License-Identifier: MIT
#include "desktop/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcDesktop, "moravel.desktop")

} // namespace moravel
