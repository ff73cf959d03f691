// SPDX-License-Identifier: MIT
#include "platform/linux/session/Log.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcSession, "moravel.platform.session")

} // namespace moravel
