// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/SettingsPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileManagerPictures.h"
#include "platform/linux/desktops/GSettingsPictures.h"

#include <QStandardPaths>

namespace moravel {

std::unique_ptr<DesktopPictures> makeSettingsPictures(const QString &currentDesktop,
                                                      const QString &supportFolder)
{
    for (const QString &word : currentDesktop.split(u':', Qt::SkipEmptyParts)) {
        const QString name = word.trimmed();
        if (const auto *desktop = gsettingsDesktop(name)) {
            auto pictures = std::make_unique<GSettingsPictures>(
                *desktop, supportFolder + QLatin1String("/desktop"));
            if (pictures->isUsable())
                return pictures;
            qCWarning(desktopsLog, "the settings of %s are not installed", desktop->name);
            return nullptr;
        }
        if (const auto *desktop = fileManagerDesktop(name)) {
            return std::make_unique<FileManagerPictures>(
                *desktop, QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                supportFolder + QLatin1String("/desktop"));
        }
    }
    return nullptr;
}

} // namespace moravel
