// SPDX-License-Identifier: MIT
#include "desktop/DesktopWatcher.h"
