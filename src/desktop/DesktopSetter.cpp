// SPDX-License-Identifier: MIT
#include "desktop/DesktopSetter.h"
