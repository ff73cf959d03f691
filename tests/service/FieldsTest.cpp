// SPDX-License-Identifier: MIT
// What answers say, and how requests are written: pure functions.
#include "support/Test.h"

#include "service/ConnectionQueue.h"
#include "service/DownloadTexts.h"
#include "service/PictureFields.h"
#include "service/ServiceUrls.h"
#include "service/SourceList.h"

namespace {

QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(u'\n');
}

TEST(SufficientData, rules)
{
    const Table<const char *, bool> cases{
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
    for (const auto &[text, good] : cases)
        EXPECT_EQ(sufficientData(lines(text)), good) << text;
}

TEST(PictureLink, fullSizeUnlessTooHeavy)
{
    const Table<const char *, const char *, const char *> cases{
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

    for (const auto &[values, full, chosen] : cases)
        EXPECT_EQ(chosenPictureLink({u"p"_s, u"c"_s, u"t"_s, u"normal"_s, QLatin1String(full),
                                     QLatin1String(values), u"i"_s}),
                  QLatin1String(chosen))
            << values;
}

TEST(InfoText, pairsOfSpacesGo)
{
    EXPECT_EQ(cleanedInfoText(u"A  B   C"_s), u"AB C"_s);
    EXPECT_EQ(cleanedInfoText(u"A    B"_s), u"AB"_s);
    EXPECT_EQ(cleanedInfoText(u" A\rB\nC "_s), u"A B C"_s);
    EXPECT_EQ(cleanedInfoText(u"A\r\nB"_s), u"AB"_s);
}

TEST(Requests, addresses)
{
    // The others are seen where they are sent.
    const ServiceUrls urls(u"http://host/base"_s);
    const QString all = urls.all(u"Wiki"_s, u"7/4/2011"_s);
    EXPECT_EQ(urls.refreshAll(u"Wiki"_s, u"7/4/2011"_s), all + u"&refresh=true"_s);
    EXPECT_EQ(urls.parent(u"Wiki"_s, u"7/4/2011"_s),
              u"http://host/base/defs/moravel.irev?option=parent&source=Wiki&date=7/4/2011"_s);
}

TEST(Requests, queryBecomesTheBody)
{
    const Table<const char *, const char *, const char *> cases{
        {"http://h/defs/moravel.irev?option=all&source=S&date=7%2F4%2F2011",
         "http://h/defs/moravel.irev", "option=all&source=S&date=7%2F4%2F2011"},
        {"http://h/defs/moravel.irev", "http://h/defs/moravel.ire", ""},
        {"http://h/x?source=\xC3\xA9", "http://h/x", "source=?"},
        {"http://h/a?b", "http://h/a", "b"},
    };
    for (const auto &[url, target, body] : cases) {
        SCOPED_TRACE(url);
        const FormPost post = formPost(QString::fromUtf8(url));
        EXPECT_EQ(post.target, QString::fromUtf8(target));
        EXPECT_EQ(post.body, QByteArray(body));
    }
}

TEST(Answers, areCleaned)
{
    EXPECT_EQ(cleanedAnswer("\r\n a\nb \n"), u"a\nb"_s);
    EXPECT_EQ(cleanedAnswer("12\\%"), u"12%"_s);
    EXPECT_EQ(cleanedAnswer("caf\xC3\xA9"), u"café"_s);
    EXPECT_EQ(cleanedAnswer("caf\xE9"), QString());
    EXPECT_EQ(cleanedAnswer(" \n\t "), QString());
}

TEST(SourcesList, reading)
{
    const auto names = [](const char *text) { return parseSources(QString::fromUtf8(text)); };
    EXPECT_EQ(names("Long B\tb\textra\nLong a\tA\n"),
              (SourceNames{{u"A"_s, u"Long a"_s}, {u"b"_s, u"Long B"_s}}));
    EXPECT_EQ(names("One\to\nno tab\nTwo\tt").size(), 1);
    EXPECT_EQ(names("One\tx\nTwo\tx").value(u"x"_s), u"Two"_s);
    EXPECT_TRUE(names("").isEmpty());
    QByteArray many;
    for (int i = 0; i < 5000; ++i)
        many += "L" + QByteArray::number(i) + "\tS" + QByteArray::number(i) + "\n";
    EXPECT_EQ(names(many.constData()).size(), 1000);
}

TEST(DownloadTexts, kilobytes)
{
    const QString s = u"Astro"_s;

    const QString downloading = u"Downloading pic from "_s;
    const Table<DownloadProgress, QString, bool> cases{
        {{s, 0, 1'500'000}, u"Astro: 0 of 1464 KB"_s, false},
        {{s, 1'000'000, 1'500'000}, u"Astro: 976 of 1464 KB"_s, false},
        {{s, 1'500'000, 1'500'000}, u"Astro: 1464 of 1464 KB"_s, true},
        {{s, 10, 1023}, u"Astro: 0 of 0 KB"_s, true},
        {{s, 9'000'000, 2048}, u"Astro: 2 of 2 KB"_s, true},
        {{{}, 0, -1}, u"(null): 0 of 0 KB"_s, true},
        {{u"%2"_s, 0, 4096}, u"%2: 0 of 4 KB"_s, false},
    };
    for (const auto &[progress, text, isSaving] : cases) {
        const QString saving = u"Saving pic from "_s + text.section(u':', 0, 0) + u"..."_s;
        EXPECT_EQ(downloadStatusText(progress), downloading + text);
        EXPECT_EQ(downloadWindowText(progress), isSaving ? saving : downloading + text);
    }
    EXPECT_NEAR(*(DownloadProgress{s, 1'000'000, 1'500'000}.percent()), 66.67F, 0.01F);
    EXPECT_FALSE((DownloadProgress{s, 5, -1}.percent()));
}

} // namespace
