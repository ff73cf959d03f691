// SPDX-License-Identifier: MIT
#include "app/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcApp, "moravel.app")

} // namespace moravel
