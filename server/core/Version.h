// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel::server {

/// The version of this program, for example "0.1.0".
QString versionText();

} // namespace moravel::server
