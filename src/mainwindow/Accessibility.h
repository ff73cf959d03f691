// SPDX-License-Identifier: MIT
#pragma once

namespace moravel {

/// Tells assistive tools what the widgets are that paint themselves. May be called again.
void installAccessibility();

} // namespace moravel
