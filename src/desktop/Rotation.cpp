// SPDX-License-Identifier: MIT
#include "desktop/Rotation.h"
