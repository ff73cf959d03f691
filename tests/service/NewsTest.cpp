// SPDX-License-Identifier: MIT
#include "World.h"

namespace {

struct NewsTest : ::testing::Test
{
    NewsTest()
    {
        w.http.answer = [this](const HttpRequest &) { return answer; };
        w.service->news().setPorts({[this](bool visible) { button = visible; },
                                    [this](const NewsSheet &sheet) { sheets.append(sheet); },
                                    [this] { ++nothing; }});
    }

    /// Loads news; tells whether the button shows.
    bool load(const FakeHttp::Answer &text)
    {
        answer = text;
        w.service->news().loadNews();
        w.run(1);
        return button;
    }

    /// Opens the news, and returns the file of those that were read.
    QByteArray show()
    {
        w.service->news().showNews();
        w.run(1);
        EXPECT_FALSE(button);
        return TempHome::read(w.home.path(u"data/Moravel/Moravel-News.txt"_s));
    }

    World w;
    FakeHttp::Answer answer;
    bool button = false;
    int nothing = 0;
    QList<NewsSheet> sheets;
};

TEST_F(NewsTest, unreadNewsShowTheButtonUntilTheyAreRead)
{
    EXPECT_FALSE(load({" \n\t"}));
    EXPECT_EQ(show(), ""); // nothing there: asks once more, and says so
    EXPECT_EQ(w.http.requests.size() + nothing, 3);
    EXPECT_TRUE(load({"\n Hello\nAll \xC3\xBC well.\n\n"}));
    EXPECT_EQ(w.http.requests.last().url, // July 4, 2011, 9:30:02 in Berlin
              QUrl(u"http://service/potd/defs/getNews.irev?timestamp=331457402"_s));
    EXPECT_EQ(show(), "Hello\nAll \xC3\xBC well.");
    EXPECT_EQ(sheets, (QList<NewsSheet>{{u"Hello"_s, QString::fromUtf8("All ü well.")}}));
    EXPECT_FALSE(load({"Hello\nAll \xC3\xBC well.\n"}));
    for (const FakeHttp::Answer &bad :
         {FakeHttp::Answer{{}, 500}, {{}, 200, u"down"_s}, {"\xFF\xFE"}}) {
        EXPECT_TRUE(load(bad));
        EXPECT_EQ(show(), "Hello\nAll \xC3\xBC well."); // so that these stay read
        EXPECT_EQ(sheets.last(), NewsSheet());
    }
    EXPECT_TRUE(load({"Other"}));
}

TEST_F(NewsTest, withoutAFolderTheyAreShownAndComeBack)
{
    w.home.write(u"data/Moravel"_s, "in the way");
    for (int i = 1; i < 3; ++i) {
        EXPECT_TRUE(load({"Hello"}));
        show();
        EXPECT_EQ(sheets.size(), i);
    }
    EXPECT_TRUE(w.alerts.shown.isEmpty());
}

TEST(News, titleLeavesTheBody)
{
    EXPECT_EQ(newsSheet(u"One"_s), (NewsSheet{u"One"_s, {}}));
    EXPECT_EQ(newsSheet(u"A\r\n\nB A C\n"_s), (NewsSheet{u"A"_s, u"B  C"_s}));
}

TEST(PageLookup, takesOneWebAddress)
{
    EXPECT_EQ(pageInAnswer(" https://p/1?a=b\r\n"), u"https://p/1?a=b"_s);
    for (const char *bad : {"", "javascript:x", "http://p/\xC3\xBC", "http://p q", "<p>\nhttp://p"})
        EXPECT_EQ(pageInAnswer(bad), QString()) << bad;
}

} // namespace
