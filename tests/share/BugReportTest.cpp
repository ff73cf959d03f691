// SPDX-License-Identifier: MIT
#include "share/BugReport.h"

#include "support/Test.h"

#include "share/UrlText.h"

#include <QUrlQuery>

namespace {

TEST(BugReport, theWholeText)
{
    BugReport report;
    report.date = QDateTime(QDate(2011, 7, 4), QTime(9, 30));
    report.version = u"1.2.3"_s;
    report.system = u"Debian %1 (bookworm)"_s;
    report.location = u"/usr/bin/moravel"_s;
    report.screens = {{{1440, 900}, true}, {{1280, 1024}, false}, {{}, false}};
    report.pictures = {u"A - July 4\n\t1\n\t2\n\t3\n"_s, u"B"_s};
    report.desktopUrl = u"/p/a%20b.jpg"_s;
    report.desktopPicture = u"Desk - July 3\n\tt\n\tp\n\tq\n"_s;
    report.rotateFrequency = 60;
    report.desktopSize = u"auto"_s;
    const QString text =
        u"Bug description:\n\nPlease type a description of the bug or feature request and if "
        "appropriate, attach a screen shot to this email.\n\n\n\nSystem:\n\n"
        "Date:\t2011-07-04 09:30:00 +0200\nMoravel:\tVersion 1.2.3\n"
        "Mac OS:\tDebian %1 (bookworm)\nLocation:\t/usr/bin/moravel\nScreens:\n"
        "\t1440 x 900 (main)\n\t1280 x 1024\n\t0 x 0\n\n\nPictures:\n\nA - July "
        "4\n\t1\n\t2\n\t3\n\nB\n"
        "\nDesktop:\n\n/p/a%20b.jpg\nDesk - July 3\n\tt\n\tp\n\tq\n\n"
        "\nPrefs:\n\n\tRotate interval:\t60\n\tDesktop sizing:\tauto\n"_s;
    EXPECT_EQ(bugReportText(report).toStdString(), text.toStdString());
    report.pictures.clear();
    EXPECT_TRUE(bugReportText(report).contains("\n\nPictures:\n\n\nDesktop:"_L1));
}

TEST(BugReport, aLongTextGoesToTheClipboardToo)
{
    const auto mailOf = [](const QString &text) { return bugMail(u"a@b"_s, u"1"_s, text); };
    const QString atMost(30'000 - u"mailto:a@b?subject=Moravel%20v1&body="_s.size(), u'x');
    EXPECT_EQ(mailOf(atMost).url.size(), 30'000);
    EXPECT_EQ(mailOf(atMost).clipboard, QString());
    const BugMail longer = mailOf(atMost + u'\n');
    const QString body = QUrlQuery(QUrl(longer.url)).queryItemValue(u"body"_s, QUrl::FullyDecoded);
    EXPECT_EQ(longer.clipboard, atMost + u'\n');
    EXPECT_TRUE(body.section(u'\n', 0, 0).contains("clipboard"_L1));
    EXPECT_EQ(body.section(u'\n', 2), atMost + u'\n');
    EXPECT_LE(mailOf(QString(200'000, u'\t')).url.size(), LongestUrl);
}

} // namespace
