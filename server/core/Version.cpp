// SPDX-License-Identifier: MIT
#include "server/core/Version.h"

namespace moravel::server {

QString versionText()
{
    return QStringLiteral(MORAVEL_VERSION);
}

} // namespace moravel::server
