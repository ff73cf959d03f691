// SPDX-License-Identifier: MIT
#include "share/BugReport.h"

#include "platform/Texts.h"
#include "share/UrlText.h"

namespace moravel {

namespace {

constexpr qsizetype LongestSureUrl = 30'000; // bytes

QString form()
{
    return QStringLiteral(
        "Bug description:\n\n"
        "Please type a description of the bug or feature request and if appropriate, attach a "
        "screen shot to this email.\n\n\n\n");
}

QString screens(const QList<BugReport::Screen> &list)
{
    QString text;
    for (const BugReport::Screen &screen : list) {
        text += QStringLiteral("\t%1 x %2%3\n")
                    .arg(QString::number(std::max(screen.size.width(), 0)),
                         QString::number(std::max(screen.size.height(), 0)),
                         screen.isMain ? QStringLiteral(" (main)") : QString());
    }
    return text;
}

QString systemBlock(const BugReport &report)
{
    QString date = report.date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss "));
    const int minutes = report.date.offsetFromUtc() / 60;
    date += QStringLiteral("%1%2%3")
                .arg(QChar(minutes < 0 ? u'-' : u'+'))
                .arg(std::abs(minutes) / 60, 2, 10, QChar(u'0'))
                .arg(std::abs(minutes) % 60, 2, 10, QChar(u'0'));
    return QStringLiteral("System:\n\nDate:\t%1\nMoravel:\tVersion %2\nMac OS:\t%3\nLocation:\t%4\n"
                          "Screens:\n%5\n")
        .arg(date, report.version, report.system, report.location, screens(report.screens));
}

} // namespace

QString bugReportText(const BugReport &report)
{
    QString pictures = QStringLiteral("\nPictures:\n\n");
    for (const QString &picture : report.pictures)
        pictures += picture + u'\n';
    const QString desktop =
        QStringLiteral("\nDesktop:\n\n%1\n%2\n").arg(report.desktopUrl, report.desktopPicture);
    const QString prefs =
        QStringLiteral("\nPrefs:\n\n\tRotate interval:\t%1\n\tDesktop sizing:\t%2\n")
            .arg(QString::number(report.rotateFrequency), report.desktopSize);
    return form() + systemBlock(report) + pictures + desktop + prefs;
}

BugMail bugMail(const QString &supportAddress, const QString &version, const QString &text)
{
    const auto build = [&](const QString &body) {
        return QStringLiteral("mailto:%1?subject=%2&body=%3")
            .arg(supportAddress, percentEscaped(QLatin1String("Moravel v") + version),
                 percentEscaped(body));
    };
    const QString url = build(text);
    if (url.size() <= LongestSureUrl)
        return {url, {}};
    const QString note =
        Texts::tr("(This text is long. It is in the clipboard as well: paste it here if its end "
                  "is missing.)\n\n");
    return {fittedUrl(note + text, build), text};
}

} // namespace moravel
