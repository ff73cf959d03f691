// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QSize>
#include <QStringList>

namespace moravel {

/// What a bug report tells of the program and its surroundings.
struct BugReport
{
    struct Screen
    {
        QSize size; ///< 0 x 0 (or none) for a screen that is missing.
        bool isMain = false;
    };

    QDateTime date;
    QString version; ///< Of the program.
    QString system; ///< Version of the operating system.
    QString location; ///< Path of the program.
    QList<Screen> screens; ///< In the desktop's order.
    QStringList pictures; ///< A summary of each picture that is shown.
    QString desktopUrl; ///< URL text of the main screen's desktop, percent escapes kept.
    QString desktopPicture; ///< The summary of the current-desktop cell.
    int rotateFrequency = 0; ///< Minutes.
    QString desktopSize; ///< Name of the sizing rule.
};

/// The text of the mail: a form for the user's words, then the report.
QString bugReportText(const BugReport &report);

/// A mail for the user to complete and send.
struct BugMail
{
    QString url;
    QString clipboard; ///< The whole text, where it is too long to be sure to arrive; else "".
};

/// Addresses @p text. Mail programs cut long addresses: over 30,000 bytes the text goes to the clipboard
/// too, and the mail's first line says so.
BugMail bugMail(const QString &supportAddress, const QString &version, const QString &text);

} // namespace moravel
