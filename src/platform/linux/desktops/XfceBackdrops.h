// SPDX-License-Identifier: MIT
// The settings of the XFCE desktop as values: what its properties are called and say.
#pragma once

#include "platform/DesktopPictures.h"

#include <QList>
#include <QString>
#include <QVariantMap>

namespace moravel::xfce {

/// One property to set.
struct Change
{
    QString property;
    QVariant value; ///< A string or an int, of the type that the property must have.
    bool operator==(const Change &) const = default;
};

/// The workspaces as the window manager tells them; both from 0.
struct Workspaces
{
    int count = 1;
    int current = 0;
};

/// The full name of a property of a monitor on a workspace.
QString property(const QString &monitor, int workspace, const char *name);

/// The workspace whose entries are shown: all share one unless the user has asked for one each.
int shownWorkspace(const QVariantMap &properties, int current);

/// URL text of the picture that a monitor shows; of its folder when the desktop cycles through it; empty
/// when the properties do not say.
QString imageUrl(const QVariantMap &properties, const QString &monitor, int current);

/// Tells whether the desktop cycles through a folder on that monitor.
bool isCycling(const QVariantMap &properties, const QString &monitor, int current);

/// What has to change so that a monitor shows a picture on all workspaces. The workspace that is shown
/// comes first, and the style before the picture, so that no wrong state is painted.
QList<Change> changesFor(const QVariantMap &properties, const QString &monitor,
                         Workspaces workspaces, const QString &path, DesktopScaling scaling);

} // namespace moravel::xfce
