// SPDX-License-Identifier: MIT
#include "desktop/DesktopCell.h"
