// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PlasmaScripts.h"

#include "platform/linux/desktops/FileUrls.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace moravel {

namespace {

constexpr QLatin1String ImagePlugin("org.kde.image");
constexpr QLatin1String SlideshowPlugin("org.kde.slideshow");

// A desktop whose screen is gone has the number -1.
const char *const ReportScript = R"(
var report = [];
var shown = desktopsForActivity(currentActivity());
if (shown.length === 0) shown = desktops();
for (var i = 0; i < shown.length; i++) {
    var d = shown[i];
    if (d.screen === -1) continue;
    var g = screenGeometry(d.screen);
    var entry = {x: g.x, y: g.y, plugin: d.wallpaperPlugin};
    d.currentConfigGroup = ["Wallpaper", "org.kde.image", "General"];
    entry.image = String(d.readConfig("Image"));
    d.currentConfigGroup = ["Wallpaper", "org.kde.slideshow", "General"];
    entry.folders = String(d.readConfig("SlidePaths"));
    report.push(entry);
}
print(JSON.stringify(report));
)";

const char *const SetScript = R"(
var found = false;
var all = desktops();
for (var n = 0; n < all.length; n++) {
    var desk = all[n];
    if (desk.screen === -1) continue;
    var area = screenGeometry(desk.screen);
    if (area.x !== %1 || area.y !== %2) continue;
    found = true;
    desk.wallpaperPlugin = "org.kde.image";
    desk.currentConfigGroup = ["Wallpaper", "org.kde.image", "General"];
    desk.writeConfig("FillMode", %3);
    desk.writeConfig("Image", %4);
}
if (!found) throw new Error("the desktop does not know this screen");
print("[]");
)";

int fillMode(DesktopScaling scaling)
{
    switch (scaling) {
    case DesktopScaling::Centred:
        return 6;
    case DesktopScaling::Fit:
        return 1;
    case DesktopScaling::Fill:
        break;
    }
    return 2;
}

/// The largest picture of a wallpaper package by its name ("3840x2160.png"), or the folder itself.
QString packagePicture(const QString &package)
{
    static const QRegularExpression sizeName(QStringLiteral("\\A(\\d{1,5})x(\\d{1,5})\\."));
    const QDir images(package + QLatin1String("/contents/images"));
    QString best;
    qint64 most = 0;
    for (const QString &name : images.entryList(QDir::Files, QDir::Name)) {
        const auto match = sizeName.match(name);
        const qint64 pixels = match.captured(1).toLongLong() * match.captured(2).toLongLong();
        if (best.isEmpty() || pixels > most) {
            best = images.filePath(name);
            most = pixels;
        }
    }
    return best;
}

/// The first of a list of folders; a comma of a name is written "\,".
QString firstFolder(const QString &folders)
{
    QString folder;
    for (qsizetype i = 0; i < folders.size() && folders[i] != u','; ++i) {
        if (folders[i] == u'\\' && i + 1 < folders.size())
            ++i;
        folder += folders[i];
    }
    folder = pathOfUrl(folder);
    return folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
}

} // namespace

QString scriptString(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2))
        .replace(QChar(0x2028), QLatin1String("\\u2028"))
        .replace(QChar(0x2029), QLatin1String("\\u2029"));
}

QString plasmaReadScript()
{
    return QString::fromLatin1(ReportScript);
}

QString plasmaSetScript(const QPoint &corner, const QString &image, DesktopScaling scaling)
{
    // All at once: a "%1" in the name must stay one.
    return QString::fromLatin1(SetScript).arg(
        QString::number(corner.x()), QString::number(corner.y()),
        QString::number(fillMode(scaling)), scriptString(image));
}

std::optional<QList<PlasmaDesktop>> parsePlasmaDesktops(const QString &printed)
{
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(printed.trimmed().toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    QList<PlasmaDesktop> desktops;
    for (const QJsonValue &value : document.array()) {
        desktops.append({QPoint(value[u"x"].toInt(), value[u"y"].toInt()),
                         value[u"plugin"].toString(), value[u"image"].toString(),
                         value[u"folders"].toString()});
    }
    return desktops;
}

QString plasmaShownPath(const PlasmaDesktop &desktop)
{
    if (desktop.plugin == SlideshowPlugin)
        return firstFolder(desktop.folders);
    const QString path = pathOfUrl(desktop.image);
    if (desktop.plugin != ImagePlugin || path.isEmpty())
        return {};
    const QString clean = QDir::cleanPath(path);
    return QDir(clean).exists() ? packagePicture(clean) : clean;
}

QString plasmaImage(const QString &path, bool otherSpelling)
{
    QString url = fileUrl(path);
    return url.replace(QLatin1String("file://localhost/"),
                       QLatin1String(otherSpelling ? "file:///./" : "file:///"));
}

} // namespace moravel
