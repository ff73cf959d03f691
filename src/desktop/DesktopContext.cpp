// SPDX-License-Identifier: MIT
#include "desktop/DesktopContext.h"

#include <algorithm>

namespace moravel {

DesktopScreen DesktopContext::mainScreen() const
{
    const QList<DesktopScreen> screens = pictures.screens();
    const auto main = std::find_if(screens.begin(), screens.end(),
                                   [](const DesktopScreen &screen) { return screen.isMain; });
    if (main != screens.end())
        return *main;
    return screens.value(0);
}

double DesktopContext::fileSizeMB(const QString &path) const
{
    constexpr double Megabyte = 1024.0 * 1024.0;
    return static_cast<double>(std::max<qint64>(platform.files.size(path), 0)) / Megabyte;
}

} // namespace moravel
