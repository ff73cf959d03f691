// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace moravel {

/// Returns one line of the log, with its line end: control characters of the text are escaped, so that a
/// text from outside cannot forge lines. For the journal each line begins with its level ("<6>").
QByteArray logLine(QtMsgType type, const char *category, const QString &text, bool forJournal);

/// Writes all messages of the program to standard error, which the desktop's session connects to the
/// system's log; with levels when that is the journal.
void installMessageLog();

} // namespace moravel
