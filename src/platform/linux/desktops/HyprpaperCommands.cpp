// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/HyprpaperCommands.h"

#include <algorithm>

namespace moravel::hyprpaper {

namespace {

constexpr qsizetype LongestPath = 900; // bytes; its socket takes 1023 in all

// There is no way to show a picture in its own size; the whole of it comes nearest.
QString modeOf(DesktopScaling scaling)
{
    return scaling == DesktopScaling::Fill ? QStringLiteral("cover") : QStringLiteral("contain");
}

} // namespace

bool canSay(const QString &path)
{
    const bool isPlain = std::none_of(path.begin(), path.end(), [](QChar c) { return c < u' '; });
    return path.startsWith(u'/') && isPlain && !path.back().isSpace()
        && path.toUtf8().size() <= LongestPath;
}

QList<QByteArray> requests(const QString &path, const QString &screen, DesktopScaling scaling,
                           bool anew)
{
    const QByteArray file = path.toUtf8();
    const QByteArray mode = scaling == DesktopScaling::Fill ? "" : "contain:";
    QList<QByteArray> list;
    if (anew)
        list.append("unload " + file);
    list.append("preload " + file);
    list.append("wallpaper " + screen.toUtf8() + ',' + mode + file);
    list.append("unload unused"); // else every picture of the day stays in its memory
    return list;
}

std::optional<QStringList> arguments(const QString &path, const QString &screen,
                                     DesktopScaling scaling)
{
    if (path.contains(u','))
        return std::nullopt;
    return QStringList{QStringLiteral("hyprpaper"), QStringLiteral("wallpaper"),
                       QStringLiteral("%1, %2, %3").arg(screen, path, modeOf(scaling))};
}

bool isText(const QByteArray &answer)
{
    return std::all_of(answer.begin(), answer.end(), [](char c) {
        return static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t';
    });
}

QHash<QString, QString> shownPaths(const QByteArray &answer)
{
    QHash<QString, QString> paths;
    for (const QString &line : QString::fromUtf8(answer).split(u'\n')) {
        const QString path = line.section(QStringLiteral(" = "), 1);
        if (path.startsWith(u'/'))
            paths.insert(line.section(QStringLiteral(" = "), 0, 0), path);
    }
    return paths;
}

QString socketPath()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString instance = qEnvironmentVariable("HYPRLAND_INSTANCE_SIGNATURE");
    if (folder.isEmpty() || instance.isEmpty() || instance.contains(u'/'))
        return {};
    return QStringLiteral("%1/hypr/%2/.hyprpaper.sock").arg(folder, instance);
}

} // namespace moravel::hyprpaper
