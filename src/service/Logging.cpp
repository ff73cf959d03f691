// SPDX-License-Identifier: MIT
#include "service/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcService, "moravel.service")

} // namespace moravel
