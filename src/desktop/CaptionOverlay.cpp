// SPDX-License-Identifier: MIT
#include "desktop/CaptionOverlay.h"
