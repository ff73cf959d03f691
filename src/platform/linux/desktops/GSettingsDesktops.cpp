// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/GSettingsDesktops.h"

#include "platform/linux/desktops/FileUrls.h"

namespace moravel {

namespace {

constexpr const char *GnomeSchema = "org.gnome.desktop.background";
constexpr const char *CinnamonSchema = "org.cinnamon.desktop.background";
constexpr const char *CinnamonSlideshow = "org.cinnamon.desktop.background.slideshow";
constexpr const char *Uri = "picture-uri";
constexpr const char *DarkUri = "picture-uri-dark";

// Flashback calls itself "GNOME-Flashback:GNOME", Budgie "Budgie:GNOME": their own word comes first.
// The last column is for the shells that paint with GNOME's own window manager library.
constexpr GSettingsDesktop Rows[] = {
    {"Budgie", "budgie", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false, true, true},
    {"Pantheon", "pantheon", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false, true},
    {"GNOME Flashback", "gnome-flashback", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false,
     false},
    {"Unity", "unity", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false, false},
    {"GNOME", "gnome", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false, true},
    {"GNOME", "gnome-classic", GnomeSchema, Uri, DarkUri, nullptr, nullptr, false, true},
    {"Cinnamon", "x-cinnamon", CinnamonSchema, Uri, nullptr, nullptr, CinnamonSlideshow, false,
     false},
    {"Cinnamon", "cinnamon", CinnamonSchema, Uri, nullptr, nullptr, CinnamonSlideshow, false,
     false},
    {"MATE", "mate", "org.mate.background", "picture-filename", nullptr, "draw-background", nullptr,
     true, false},
};

bool isTimed(const QString &path)
{
    return path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
}

QString folderOf(const QString &path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

/// The folder of a slideshow source, which is "directory:///…" or "xml:///…" with a path as it stands.
QString slideshowFolder(const QString &source)
{
    const qsizetype colon = source.indexOf(QLatin1String("://"));
    const QString path = colon < 0 ? source : source.mid(colon + 3);
    if (!path.startsWith(u'/'))
        return {};
    if (source.startsWith(QLatin1String("xml:")))
        return folderOf(path);
    return path.endsWith(u'/') ? path : path + u'/';
}

QString currentPicture(const GSettingsReading &reading)
{
    const bool dark = reading.colorScheme == u"prefer-dark" && reading.darkPicture;
    return pathOfUrl(dark ? *reading.darkPicture : reading.picture.value_or(QString()));
}

} // namespace

const GSettingsDesktop *gsettingsDesktop(const QString &word)
{
    for (const GSettingsDesktop &row : Rows) {
        if (word.compare(QLatin1String(row.word), Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

bool isSlideshow(const GSettingsReading &reading)
{
    return reading.slideshowEnabled.value_or(false) || isTimed(currentPicture(reading));
}

QString shownPath(const GSettingsReading &reading)
{
    if (reading.options == u"none" || !reading.draws.value_or(true))
        return {};
    if (reading.slideshowEnabled.value_or(false)) {
        const QString folder = slideshowFolder(reading.slideshowSource.value_or(QString()));
        if (!folder.isEmpty())
            return folder;
    }
    const QString path = currentPicture(reading);
    return isTimed(path) ? folderOf(path) : path;
}

QString pictureValue(const QString &path, bool plainPath)
{
    return plainPath
        ? path
        : fileUrl(path).replace(QLatin1String("file://localhost/"), QLatin1String("file:///"));
}

QString pictureOptions(DesktopScaling scaling)
{
    switch (scaling) {
    case DesktopScaling::Centred:
        return QStringLiteral("centered");
    case DesktopScaling::Fit:
        return QStringLiteral("scaled");
    case DesktopScaling::Fill:
        break;
    }
    return QStringLiteral("zoom");
}

} // namespace moravel
