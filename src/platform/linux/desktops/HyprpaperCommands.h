// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <optional>

/// The text that hyprpaper takes and gives.
namespace moravel::hyprpaper {

/// Tells whether a path can be said in the text at all: of limited length, no line break, no blank at its end.
bool canSay(const QString &path);

/// Requests for its socket, one after the other, that show a picture. With @p anew it forgets the one of
/// the same path first.
QList<QByteArray> requests(const QString &path, const QString &screen, DesktopScaling scaling,
                           bool anew);

/// Arguments of the program hyprctl for the same; nothing where they could be misread.
std::optional<QStringList> arguments(const QString &path, const QString &screen,
                                     DesktopScaling scaling);

/// Tells whether an answer is text at all, and not of another protocol.
bool isText(const QByteArray &answer);

/// The path shown on each screen, from the answer to "listactive".
QHash<QString, QString> shownPaths(const QByteArray &answer);

/// Where its socket lies, from the environment of the session; empty without one.
QString socketPath();

} // namespace moravel::hyprpaper
