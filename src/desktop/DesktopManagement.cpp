// SPDX-License-Identifier: MIT
#include "desktop/DesktopManagement.h"
