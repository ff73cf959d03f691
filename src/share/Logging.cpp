// SPDX-License-Identifier: MIT
#include "share/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcShare, "moravel.share")

} // namespace moravel
