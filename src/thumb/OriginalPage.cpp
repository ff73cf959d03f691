// SPDX-License-Identifier: MIT
#include "thumb/OriginalPage.h"

namespace moravel {

QString originalPage(const QString &shortSourceName, const QString &parentPath)
{
    // On this source's site only the page of the file itself is about the picture.
    const bool isUsable = shortSourceName != u"Wiki" || parentPath.contains(QLatin1String("File:"));
    return isUsable ? parentPath : QString();
}

} // namespace moravel
