// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileManagers.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <glib.h>

namespace moravel {

namespace {

constexpr qint64 LargestSettings = 1024 * 1024;

constexpr FileManagerDesktop Rows[] = {
    // Its help knows "zoom", its command does not.
    {"LXQt", "lxqt", "pcmanfm-qt", "center", "fit", nullptr, "lxqt", "settings.conf", false, false,
     "org.pcmanfm.PCManFM"},
    {"LXDE", "lxde", "pcmanfm", "center", "fit", "crop", "LXDE", "desktop-items-0.conf", true, true,
     nullptr},
};

QString keyFileText(GKeyFile *file, const char *key)
{
    char *text = g_key_file_get_string(file, "*", key, nullptr);
    const QString result = QString::fromUtf8(text);
    g_free(text);
    return result;
}

/// Pictures of virtual desktops, where they differ, are numbered; the first one stands for all.
FileManagerReading readKeyFile(const QByteArray &path)
{
    FileManagerReading reading;
    GKeyFile *file = g_key_file_new();
    if (g_key_file_load_from_file(file, path.constData(), G_KEY_FILE_NONE, nullptr)) {
        const bool differ = keyFileText(file, "wallpaper_common") == u"0";
        if (keyFileText(file, "wallpaper_mode") != u"color")
            reading.image = keyFileText(file, differ ? "wallpaper0" : "wallpaper");
    }
    g_key_file_free(file);
    return reading;
}

FileManagerReading readIni(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    // A name with a comma is read as a list.
    const auto text = [&](const char *key) {
        return file.value(QLatin1String(key)).toStringList().join(u',');
    };
    FileManagerReading reading;
    reading.image = text("Desktop/Wallpaper");
    if (file.value(QStringLiteral("Desktop/SlideShowInterval")).toInt() > 0)
        reading.slideshowFolder = text("Desktop/WallpaperDirectory");
    return reading;
}

} // namespace

const FileManagerDesktop *fileManagerDesktop(const QString &word)
{
    for (const FileManagerDesktop &row : Rows) {
        if (word.compare(QLatin1String(row.word), Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

QStringList setArguments(const FileManagerDesktop &desktop, const QString &path,
                         DesktopScaling scaling)
{
    const char *mode = scaling == DesktopScaling::Centred ? desktop.centred
        : scaling == DesktopScaling::Fit                  ? desktop.fit
        : desktop.fill                                    ? desktop.fill
                                                          : "stretch";
    return {QStringLiteral("--set-wallpaper"), path, QStringLiteral("--wallpaper-mode"),
            QLatin1String(mode)};
}

bool canKeep(const FileManagerDesktop &desktop, const QString &path)
{
    // Written as it stands, and read back with backslash sequences.
    return !desktop.isKeyFile || std::none_of(path.begin(), path.end(), [](QChar c) {
        return c < u' ' || c == QChar(0x7f) || c == u'\\';
    });
}

QString settingsPath(const FileManagerDesktop &desktop, const QString &configFolder)
{
    const auto file = [&](const char *profile) {
        return configFolder + u'/' + QLatin1String(desktop.program) + u'/' + QLatin1String(profile)
            + u'/' + QLatin1String(desktop.settings);
    };
    const QString own = file(desktop.profile);
    const QString common = file("default");
    return !QFileInfo::exists(own) && QFileInfo::exists(common) ? common : own;
}

FileManagerReading readSettings(const FileManagerDesktop &desktop, const QString &file)
{
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > LargestSettings)
        return {};
    FileManagerReading reading = desktop.isKeyFile ? readKeyFile(file.toUtf8()) : readIni(file);
    if (!reading.slideshowFolder.isEmpty() && !reading.slideshowFolder.endsWith(u'/'))
        reading.slideshowFolder += u'/';
    return reading;
}

} // namespace moravel
