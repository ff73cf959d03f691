// SPDX-License-Identifier: MIT
// What answers say, and how requests are written: pure functions.
#include "service/ConnectionQueue.h"
#include "service/DownloadTexts.h"
#include "service/PictureFields.h"
#include "service/ServiceUrls.h"
#include "service/SourceList.h"

#include <gtest/gtest.h>

namespace moravel {
namespace {

QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(u'\n');
}

TEST(SufficientData, rules)
{
    const struct
    {
        const char *text;
        bool good;
    } cases[] = {
        {"p\nc\nt\nl\n\n\ni", true},
        {"p\nc\nt\nl\nhttp://full\n1,2,3\ni", true},
        {"p\nc\nt\nl\n\n\ni\nmore\nlines", true},
        {"p\nc\nt\nl\n\n", false}, // six lines
        {"Error: no\nc\nt\nl\n\n\ni", false},
        {"\nc\nt\nl\n\n\ni", false},
        {"p\nNo caption for this day\nt\nl\n\n\ni", false},
        {"p\n\nt\nl\n\n\ni", false},
        {"p\nc\n\n\nhttp://full\n\ni", false}, // neither thumb nor picture
        {"p\nc\nt\n\n\n\ni", false}, // neither picture nor full size
        {"p\nc\nt\n\nhttp://full\n\ni", true},
        {"p\nc\n\nl\n\n\ni", true},
        {"p\nc\nt\nl\nftp://full\n\ni", false},
        {"p\nc\nt\nl\n /relative\n\ni", false},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(sufficientData(lines(c.text)), c.good);
    }
}

TEST(PictureLink, fullSizeUnlessTooHeavy)
{
    const struct
    {
        const char *values;
        const char *full;
        const char *chosen;
    } cases[] = {
        {"4000,3000,5.2", "http://full", "normal"},
        {"4000,3000,2.5", "http://full", "http://full"},
        {"4000,3000,3.0", "http://full", "http://full"},
        {"4000,3000,heavy", "http://full", "http://full"},
        {"4000,3000,4MB", "http://full", "normal"},
        {"4000,3000", "http://full", "http://full"},
        {"", "http://full", "http://full"},
        {"4000,3000,2.5", "", "normal"},
        {"1,2, 3.1 ,9", "http://full", "normal"},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.values);
        EXPECT_EQ(chosenPictureLink({QStringLiteral("p"), QStringLiteral("c"), QStringLiteral("t"),
                                     QStringLiteral("normal"), QString::fromLatin1(c.full),
                                     QString::fromLatin1(c.values), QStringLiteral("i")}),
                  QString::fromLatin1(c.chosen));
    }
}

TEST(InfoText, pairsOfSpacesGo)
{
    EXPECT_EQ(cleanedInfoText(QStringLiteral("A  B   C")), QStringLiteral("AB C"));
    EXPECT_EQ(cleanedInfoText(QStringLiteral("A    B")), QStringLiteral("AB"));
    EXPECT_EQ(cleanedInfoText(QStringLiteral(" A\rB\nC ")), QStringLiteral("A B C"));
    EXPECT_EQ(cleanedInfoText(QStringLiteral("A\r\nB")), QStringLiteral("AB"));
}

TEST(Requests, addresses)
{
    const ServiceUrls urls(QStringLiteral("http://host/base"));
    const QString s = QStringLiteral("Wiki");
    const QString day = QStringLiteral("7/4/2011");
    EXPECT_EQ(urls.sources(), QStringLiteral("http://host/base/defs/getSources.irev"));
    EXPECT_EQ(urls.all(s, day),
              QStringLiteral(
                  "http://host/base/defs/moravel.irev?option=all&source=Wiki&date=7%2F4%2F2011"));
    EXPECT_EQ(urls.refreshAll(s, day), urls.all(s, day) + QStringLiteral("&refresh=true"));
    const QString look =
        QStringLiteral("http://host/base/defs/moravel.irev?option=%1&source=Wiki&date=7/4/2011");
    EXPECT_EQ(urls.parent(s, day), look.arg(QStringLiteral("parent")));
    EXPECT_EQ(urls.thumb(s, day), look.arg(QStringLiteral("thumb")));
    EXPECT_EQ(urls.captionPlusText(s, day),
              look.arg(QStringLiteral("captionPlusText")) + QStringLiteral("&refresh=true"));
}

TEST(Requests, queryBecomesTheBody)
{
    const struct
    {
        const char *url;
        const char *target;
        const char *body;
    } cases[] = {
        {"http://h/defs/moravel.irev?option=all&source=S&date=7%2F4%2F2011",
         "http://h/defs/moravel.irev", "option=all&source=S&date=7%2F4%2F2011"},
        {"http://h/defs/moravel.irev", "http://h/defs/moravel.ire", ""},
        {"http://h/x?source=\xC3\xA9", "http://h/x", "source=?"},
        {"http://h/a?b", "http://h/a", "b"},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.url);
        const FormPost post = formPost(QString::fromUtf8(c.url));
        EXPECT_EQ(post.target, QString::fromUtf8(c.target));
        EXPECT_EQ(post.body, QByteArray(c.body));
    }
}

TEST(Answers, areCleaned)
{
    EXPECT_EQ(cleanedAnswer("\r\n a\nb \n"), QStringLiteral("a\nb"));
    EXPECT_EQ(cleanedAnswer("12\\%"), QStringLiteral("12%"));
    EXPECT_EQ(cleanedAnswer("caf\xC3\xA9"), QStringLiteral("café"));
    EXPECT_EQ(cleanedAnswer("caf\xE9"), QString());
    EXPECT_EQ(cleanedAnswer(" \n\t "), QString());
}

TEST(SourcesList, reading)
{
    const auto names = [](const char *text) { return parseSources(QString::fromUtf8(text)); };
    EXPECT_EQ(names("Long B\tb\textra\nLong a\tA\n"),
              (SourceNames{{QStringLiteral("A"), QStringLiteral("Long a")},
                           {QStringLiteral("b"), QStringLiteral("Long B")}}));
    EXPECT_EQ(names("One\to\nno tab\nTwo\tt").size(), 1);
    EXPECT_EQ(names("One\tx\nTwo\tx").value(QStringLiteral("x")), QStringLiteral("Two"));
    EXPECT_TRUE(names("").isEmpty());
    QByteArray many;
    for (int i = 0; i < 5000; ++i)
        many += "L" + QByteArray::number(i) + "\tS" + QByteArray::number(i) + "\n";
    EXPECT_EQ(names(many.constData()).size(), 1000);
}

TEST(DownloadTexts, kilobytes)
{
    const QString s = QStringLiteral("Astro");

    const struct
    {
        DownloadProgress progress;
        const char *status;
        const char *window;
    } cases[] = {
        {{s, 0, 1'500'000},
         "Downloading pic from Astro: 0 of 1464 KB",
         "Downloading pic from Astro: 0 of 1464 KB"},
        {{s, 1'000'000, 1'500'000},
         "Downloading pic from Astro: 976 of 1464 KB",
         "Downloading pic from Astro: 976 of 1464 KB"},
        {{s, 1'500'000, 1'500'000},
         "Downloading pic from Astro: 1464 of 1464 KB",
         "Saving pic from Astro..."},
        {{s, 10, 1023}, "Downloading pic from Astro: 0 of 0 KB", "Saving pic from Astro..."},
        {{s, 9'000'000, 2048}, "Downloading pic from Astro: 2 of 2 KB", "Saving pic from Astro..."},
        {{{}, 0, -1}, "Downloading pic from (null): 0 of 0 KB", "Saving pic from (null)..."},
        {{QStringLiteral("%2"), 0, 4096},
         "Downloading pic from %2: 0 of 4 KB",
         "Downloading pic from %2: 0 of 4 KB"},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.status);
        EXPECT_EQ(downloadStatusText(c.progress), QString::fromLatin1(c.status));
        EXPECT_EQ(downloadWindowText(c.progress), QString::fromLatin1(c.window));
    }
    EXPECT_NEAR(*(DownloadProgress{s, 1'000'000, 1'500'000}.percent()), 66.67F, 0.01F);
    EXPECT_FALSE((DownloadProgress{s, 5, -1}.percent()));
}

} // namespace
} // namespace moravel
