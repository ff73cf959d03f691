// SPDX-License-Identifier: MIT
#include "browser/Logging.h"

namespace moravel {

Q_LOGGING_CATEGORY(lcBrowser, "moravel.browser")

} // namespace moravel
