// SPDX-License-Identifier: MIT
#include "base/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcBase, "moravel.base")

} // namespace moravel
