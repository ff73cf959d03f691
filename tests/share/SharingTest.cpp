// SPDX-License-Identifier: MIT
#include "share/Sharing.h"

#include "support/FakePlatform.h"
#include "support/Test.h"

#include "platform/qt/QtUrlOpener.h"
#include "share/UrlText.h"

#include <QUrlQuery>

namespace {

QString decoded(const QString &url, const char *key)
{
    return QUrlQuery(QUrl(url)).queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
}

/// What another program gets of an address. Inside its lab the test hands it to the desktop, whose programs
/// write down what they are given.
QString arrived(const QString &url)
{
    QFile file(qEnvironmentVariable("OPENED"));
    if (file.fileName().isEmpty())
        return url;
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    file.seek(file.size());
    QtUrlOpener().open(url);
    QByteArray line;
    EXPECT_TRUE(waitFor([&] { return (line += file.readAll()).endsWith('\n'); }));
    // One opener takes the scheme off for mail programs.
    return QString::fromUtf8((line.startsWith('?') ? "mailto:" + line : line).trimmed());
}

struct SharingTest : ::testing::Test
{
    SharingTest()
    {
        cell.showSource(u"Sea & Sky"_s, u"Sea"_s);
        cell.showDate(u"July 4, 2011"_s);
        cell.showCaption(u"A bay"_s);
        cell.setParentPath(u"http://p/1?a=b&c#d"_s);
    }

    SharePorts ports()
    {
        return {[this](const QString &source, const QString &day, auto done) {
                    asked.append(source + u' ' + day);
                    answer = done;
                },
                [this](const QString &message, const QString &) { told.append(message); },
                [this](const QString &message, const QString &, auto ended) {
                    told.append(message.left(7));
                    dismiss = ended;
                }};
    }

    FakeUrlOpener urls;
    FakeClipboard clipboard;
    FakeDefaults defaults;
    Preferences preferences{defaults};
    Dates dates{u"en_US"_s};
    ThumbImages images;
    ThumbCommands commands;
    ThumbView cell{ThumbView::GridTag, images, commands, {}};
    QStringList asked, told;
    std::function<void(const QString &)> answer;
    std::function<void()> dismiss;
    Sharing sharing{urls,   clipboard, preferences, dates, {u"fb"_s, u"tw"_s, u"http://home"_s},
                    ports()};
};

TEST_F(SharingTest, theFirstPostIsExplained)
{
    for (int i = 0; i < 2; ++i) {
        clipboard.text.clear();
        sharing.shareFacebook(cell);
        EXPECT_EQ(clipboard.text,
                  u"Sea & Sky picture of the day for July 4, 2011, shared using Moravel."_s);
        EXPECT_EQ(told, QStringList{u"You wil"_s});
        EXPECT_EQ(urls.opened.size(), i * 2);
        if (i == 0)
            dismiss();
    }
    EXPECT_EQ(urls.opened.value(1),
              u"https://fb/sharer.php?u=http%3A%2F%2Fp%2F1%3Fa%3Db%26c%23d&t=Sea%20%26%20Sky"
              "%20picture%20of%20the%20day%20for%20July%204%2C%202011"_s);
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(SharingTest, thePageIsLookedUpOnceForThePictureThatWasMeant)
{
    cell.showSource(u"Wikimedia"_s, u"Wiki"_s);
    sharing.shareEmail(cell); // its page is not that of a file
    EXPECT_TRUE(urls.opened.isEmpty());
    cell.showDate(u"July 5, 2011"_s);
    answer(u"http://w/File:x"_s);
    EXPECT_EQ(cell.parentPath(), u"http://p/1?a=b&c#d"_s);
    EXPECT_EQ(decoded(urls.opened.value(0), "body"),
              u"Wikimedia picture of the day for July 4, 2011, shared using Moravel "
              "<http://home>.\nA bay\nhttp://w/File:x\n"_s);
    sharing.shareTwitter(cell);
    answer(u"http://w/File:y"_s);
    sharing.shareTwitter(cell);
    EXPECT_EQ(urls.opened.value(2),
              u"http://tw/share?url=http%3A%2F%2Fw%2FFile%3Ay&text=A%20bay%20-%20Wikimedia%20"
              "PoD%20-%20July%205%2C%202011%2C%20shared%20via%20Moravel."_s);
    EXPECT_EQ(asked, (QStringList{u"Wiki 7/4/2011"_s, u"Wiki 7/5/2011"_s}));
}

TEST_F(SharingTest, withoutAPageNothingIsShared)
{
    cell.setParentPath({});
    for (const auto command :
         {&Sharing::shareFacebook, &Sharing::shareTwitter, &Sharing::shareEmail}) {
        (sharing.*command)(cell);
        answer({});
    }
    EXPECT_EQ(told,
              (QStringList{u"Sorry, that picture could not be posted on Facebook."_s,
                           u"Sorry, that picture could not be posted on Twitter."_s,
                           u"Sorry, that picture could not be shared via email."_s}));
    EXPECT_TRUE(urls.opened.isEmpty() && clipboard.text.isEmpty());
}

TEST_F(SharingTest, wordsArriveAsTheyWereMeantAndAddNothing)
{
    const QString emoji = QString::fromUtf8("\xF0\x9F\x8C\x85");
    SharedPicture picture(cell);
    for (const QString &caption :
         {u"\"Salt & <pepper>\" 100% #1 a+b=c;d?e/f\\g 'h' `i` $(j) %41 ~k|l*"_s,
          u"x&subject=y\r\nBcc: z@example.org\n\n?attach=/etc/passwd&body=\t"_s,
          emoji + QString::fromUtf8(" \u0645\u0634\u0647\u062f \u00fc"), u"a b&"_s.repeated(2500),
          QString::fromUtf8("\u0645").repeated(10'000), emoji.repeated(10'000)}) {
        SCOPED_TRACE(qPrintable(caption.left(40)));
        picture.captionString = caption;
        const QString mail = arrived(emailUrl(u"http://home"_s, picture));
        const QString tweet = arrived(twitterUrl(u"tw"_s, picture));
        EXPECT_EQ(decoded(mail, "body").section(u'\n', 1), caption + u"\nhttp://p/1?a=b&c#d\n"_s);
        EXPECT_EQ(decoded(tweet, "text"),
                  caption + u" - Sea & Sky PoD - July 4, 2011, shared via Moravel."_s);
        EXPECT_EQ(mail.count(u'&') + tweet.count(u'&'), 2);
    }
    EXPECT_EQ(decoded(arrived(facebookUrl(u"fb"_s, picture)), "u"), picture.page);
    picture.captionString = emoji.repeated(20'000); // more than the system hands over
    const QString url = twitterUrl(u"tw"_s, picture);
    EXPECT_LE(url.size(), LongestUrl);
    EXPECT_GT(url.size(), LongestUrl - 12);
    EXPECT_TRUE(decoded(arrived(url), "text").contains(emoji + QChar(0x2026) + " - Sea"_L1));
    picture.longSourceName = u"a\r\nBcc: b"_s;
    EXPECT_TRUE(decoded(emailUrl({}, picture), "subject").startsWith("a  Bcc: b"_L1));
}

} // namespace
