// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/XfceBackdrops.h"

#include "platform/linux/desktops/FileUrls.h"

#include <algorithm>

namespace moravel::xfce {

namespace {

constexpr int MaxWorkspaces = 64; ///< More is a broken window manager.

int styleOf(DesktopScaling scaling)
{
    switch (scaling) {
    case DesktopScaling::Centred:
        return 1;
    case DesktopScaling::Fit:
        return 4;
    case DesktopScaling::Fill:
        return 5;
    }
    return 5;
}

} // namespace

QString property(const QString &monitor, int workspace, const char *name)
{
    return QStringLiteral("/backdrop/screen0/monitor%1/workspace%2/%3")
        .arg(monitor, QString::number(workspace), QLatin1String(name));
}

int shownWorkspace(const QVariantMap &properties, int current)
{
    const bool single =
        properties.value(QStringLiteral("/backdrop/single-workspace-mode"), true).toBool();
    const int number = single
        ? properties.value(QStringLiteral("/backdrop/single-workspace-number"), 0).toInt()
        : current;
    return std::clamp(number, 0, MaxWorkspaces - 1);
}

bool isCycling(const QVariantMap &properties, const QString &monitor, int current)
{
    return properties
        .value(property(monitor, shownWorkspace(properties, current), "backdrop-cycle-enable"))
        .toBool();
}

QString imageUrl(const QVariantMap &properties, const QString &monitor, int current)
{
    const QString path = pathOfUrl(
        properties.value(property(monitor, shownWorkspace(properties, current), "last-image"))
            .toString());
    return isCycling(properties, monitor, current) ? folderUrlOf(path) : fileUrl(path);
}

QList<Change> changesFor(const QVariantMap &properties, const QString &monitor,
                         Workspaces workspaces, const QString &path, DesktopScaling scaling)
{
    const int shown = shownWorkspace(properties, workspaces.current);
    QList<int> numbers{shown};
    for (int i = 0; i < std::clamp(workspaces.count, 1, MaxWorkspaces); ++i) {
        if (i != shown)
            numbers.append(i);
    }
    QList<Change> changes;
    for (const int number : numbers) {
        const Change wanted[] = {{property(monitor, number, "image-style"), styleOf(scaling)},
                                 {property(monitor, number, "last-image"), path}};
        for (const Change &change : wanted) {
            if (properties.value(change.property) != change.value)
                changes.append(change);
        }
    }
    return changes;
}

} // namespace moravel::xfce
