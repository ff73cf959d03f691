// SPDX-License-Identifier: MIT
// The text of an entry that starts a program with the session.
#pragma once

#include <QString>
#include <QStringList>

namespace moravel {

/// Tells whether a desktop starts what the entry names.
bool startsWithSession(const QString &entry);

/// Returns @p entry changed so that desktops start it, or not; everything else in it stays. An entry that
/// names no program is replaced by one that runs @p command.
QString changedAutostart(const QString &entry, bool on, const QStringList &command);

/// Returns the value of an Exec line that runs exactly these arguments.
QString execLine(const QStringList &command);

} // namespace moravel
