// SPDX-License-Identifier: MIT
#include "store/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcStore, "moravel.store")

} // namespace moravel
