// SPDX-License-Identifier: MIT
#pragma once

namespace moravel {

/// Lets assistive tools read the image browser as a list of its pictures. May be called again.
void installBrowserAccessibility();

} // namespace moravel
