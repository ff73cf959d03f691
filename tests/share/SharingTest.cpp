// SPDX-License-Identifier: MIT
#include "share/Sharing.h"

#include "support/FakePlatform.h"
#include "support/Wait.h"

#include "platform/qt/QtUrlOpener.h"
#include "share/UrlText.h"

#include <QFile>
#include <QUrlQuery>

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

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

class SharingTest : public ::testing::Test
{
protected:
    SharingTest()
    {
        cell.showSource(QStringLiteral("Sea & Sky"), QStringLiteral("Sea"));
        cell.showDate(QStringLiteral("July 4, 2011"));
        cell.showCaption(QStringLiteral("A bay"));
        cell.setParentPath(QStringLiteral("http://p/1?a=b&c#d"));
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
    Dates dates{QStringLiteral("en_US")};
    ThumbImages images;
    ThumbCommands commands;
    ThumbView cell{ThumbView::GridTag, images, commands, {}};
    QStringList asked, told;
    std::function<void(const QString &)> answer;
    std::function<void()> dismiss;
    Sharing sharing{urls,
                    clipboard,
                    preferences,
                    dates,
                    {QStringLiteral("fb"), QStringLiteral("tw"), QStringLiteral("http://home")},
                    ports()};
};

TEST_F(SharingTest, theFirstPostIsExplained)
{
    for (int i = 0; i < 2; ++i) {
        clipboard.text.clear();
        sharing.shareFacebook(cell);
        EXPECT_EQ(
            clipboard.text,
            QStringLiteral("Sea & Sky picture of the day for July 4, 2011, shared using Moravel."));
        EXPECT_EQ(told, QStringList{QStringLiteral("You wil")});
        EXPECT_EQ(urls.opened.size(), i * 2);
        if (i == 0)
            dismiss();
    }
    EXPECT_EQ(urls.opened.value(1),
              QStringLiteral(
                  "https://fb/sharer.php?u=http%3A%2F%2Fp%2F1%3Fa%3Db%26c%23d&t=Sea%20%26%20Sky"
                  "%20picture%20of%20the%20day%20for%20July%204%2C%202011"));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(SharingTest, thePageIsLookedUpOnceForThePictureThatWasMeant)
{
    cell.showSource(QStringLiteral("Wikimedia"), QStringLiteral("Wiki"));
    sharing.shareEmail(cell); // its page is not that of a file
    EXPECT_TRUE(urls.opened.isEmpty());
    cell.showDate(QStringLiteral("July 5, 2011"));
    answer(QStringLiteral("http://w/File:x"));
    EXPECT_EQ(cell.parentPath(), QStringLiteral("http://p/1?a=b&c#d"));
    EXPECT_EQ(decoded(urls.opened.value(0), "body"),
              QStringLiteral("Wikimedia picture of the day for July 4, 2011, shared using Moravel "
                             "<http://home>.\nA bay\nhttp://w/File:x\n"));
    sharing.shareTwitter(cell);
    answer(QStringLiteral("http://w/File:y"));
    sharing.shareTwitter(cell);
    EXPECT_EQ(urls.opened.value(2),
              QStringLiteral(
                  "http://tw/share?url=http%3A%2F%2Fw%2FFile%3Ay&text=A%20bay%20-%20Wikimedia%20"
                  "PoD%20-%20July%205%2C%202011%2C%20shared%20via%20Moravel."));
    EXPECT_EQ(asked,
              (QStringList{QStringLiteral("Wiki 7/4/2011"), QStringLiteral("Wiki 7/5/2011")}));
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
              (QStringList{QStringLiteral("Sorry, that picture could not be posted on Facebook."),
                           QStringLiteral("Sorry, that picture could not be posted on Twitter."),
                           QStringLiteral("Sorry, that picture could not be shared via email.")}));
    EXPECT_TRUE(urls.opened.isEmpty() && clipboard.text.isEmpty());
}

TEST_F(SharingTest, wordsArriveAsTheyWereMeantAndAddNothing)
{
    const QString emoji = QString::fromUtf8("\xF0\x9F\x8C\x85");
    SharedPicture picture(cell);
    for (const QString &caption :
         {QStringLiteral("\"Salt & <pepper>\" 100% #1 a+b=c;d?e/f\\g 'h' `i` $(j) %41 ~k|l*"),
          QStringLiteral("x&subject=y\r\nBcc: z@example.org\n\n?attach=/etc/passwd&body=\t"),
          emoji + QString::fromUtf8(" \u0645\u0634\u0647\u062f \u00fc"),
          QStringLiteral("a b&").repeated(2500), QString::fromUtf8("\u0645").repeated(10'000),
          emoji.repeated(10'000)}) {
        SCOPED_TRACE(qPrintable(caption.left(40)));
        picture.captionString = caption;
        const QString mail = arrived(emailUrl(QStringLiteral("http://home"), picture));
        const QString tweet = arrived(twitterUrl(QStringLiteral("tw"), picture));
        EXPECT_EQ(decoded(mail, "body").section(u'\n', 1),
                  caption + QStringLiteral("\nhttp://p/1?a=b&c#d\n"));
        EXPECT_EQ(decoded(tweet, "text"),
                  caption + QStringLiteral(" - Sea & Sky PoD - July 4, 2011, shared via Moravel."));
        EXPECT_EQ(mail.count(u'&') + tweet.count(u'&'), 2);
    }
    EXPECT_EQ(decoded(arrived(facebookUrl(QStringLiteral("fb"), picture)), "u"), picture.page);
    picture.captionString = emoji.repeated(20'000); // more than the system hands over
    const QString url = twitterUrl(QStringLiteral("tw"), picture);
    EXPECT_LE(url.size(), LongestUrl);
    EXPECT_GT(url.size(), LongestUrl - 12);
    EXPECT_TRUE(
        decoded(arrived(url), "text").contains(emoji + QChar(0x2026) + QLatin1String(" - Sea")));
    picture.longSourceName = QStringLiteral("a\r\nBcc: b");
    EXPECT_TRUE(decoded(emailUrl({}, picture), "subject").startsWith(QLatin1String("a  Bcc: b")));
}

} // namespace
} // namespace moravel
