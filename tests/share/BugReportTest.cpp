// SPDX-License-Identifier: MIT
#include "share/BugReport.h"

#include "share/UrlText.h"

#include <QUrlQuery>

#include <gtest/gtest.h>

namespace moravel {
namespace {

TEST(BugReport, theWholeText)
{
    BugReport report;
    report.date = QDateTime(QDate(2011, 7, 4), QTime(9, 30));
    report.version = QStringLiteral("1.2.3");
    report.system = QStringLiteral("Debian %1 (bookworm)");
    report.location = QStringLiteral("/usr/bin/moravel");
    report.screens = {{{1440, 900}, true}};
    report.desktopUrl = QStringLiteral("/p/a%20b.jpg");
    report.desktopPicture = QStringLiteral("Desk - July 3\n\tt\n\tp\n\tq\n");
    report.rotateFrequency = 60;
    report.desktopSize = QStringLiteral("auto");
    const QString head = QStringLiteral(
        "Bug description:\n\nPlease type a description of the bug or feature request and if "
        "appropriate, attach a screen shot to this email.\n\n\n\nSystem:\n\n"
        "Date:\t2011-07-04 09:30:00 +0200\nMoravel:\tVersion 1.2.3\n"
        "Mac OS:\tDebian %1 (bookworm)\nLocation:\t/usr/bin/moravel\nScreens:\n"
        "\t1440 x 900 (main)\n");
    const QString tail =
        QStringLiteral("\nDesktop:\n\n/p/a%20b.jpg\nDesk - July 3\n\tt\n\tp\n\tq\n\n"
                       "\nPrefs:\n\n\tRotate interval:\t60\n\tDesktop sizing:\tauto\n");
    EXPECT_EQ(bugReportText(report).toStdString(),
              (head + QStringLiteral("\n\nPictures:\n\n") + tail).toStdString());

    report.screens.append({{1280, 1024}, false});
    report.screens.append({{}, false});
    report.pictures = {QStringLiteral("A - July 4\n\t1\n\t2\n\t3\n"), QStringLiteral("B")};
    EXPECT_EQ(bugReportText(report).toStdString(),
              (head
               + QStringLiteral("\t1280 x 1024\n\t0 x 0\n\n\nPictures:\n\nA - July 4\n\t1\n\t2\n"
                                "\t3\n\nB\n")
               + tail)
                  .toStdString());
}

TEST(BugReport, aLongTextGoesToTheClipboardToo)
{
    const auto mailOf = [](const QString &text) {
        return bugMail(QStringLiteral("a@b"), QStringLiteral("1"), text);
    };
    const QString atMost(30'000 - QStringLiteral("mailto:a@b?subject=Moravel%20v1&body=").size(),
                         u'x');
    EXPECT_EQ(mailOf(atMost).url.size(), 30'000);
    EXPECT_EQ(mailOf(atMost).clipboard, QString());
    const BugMail longer = mailOf(atMost + u'\n');
    const QString body =
        QUrlQuery(QUrl(longer.url)).queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded);
    EXPECT_EQ(longer.clipboard, atMost + u'\n');
    EXPECT_TRUE(body.section(u'\n', 0, 0).contains(QLatin1String("clipboard")));
    EXPECT_EQ(body.section(u'\n', 2), atMost + u'\n');
    EXPECT_LE(mailOf(QString(200'000, u'\t')).url.size(), LongestUrl);
}

} // namespace
} // namespace moravel
