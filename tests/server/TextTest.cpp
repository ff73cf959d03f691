// SPDX-License-Identifier: MIT
#include "server/core/Text.h"

#include "server/core/Answers.h"
#include "server/core/Days.h"
#include "server/core/Form.h"
#include "server/core/PictureNames.h"

#include <gtest/gtest.h>

namespace moravel::server {

TEST(Days, OnlyTheOneFormIsRead)
{
    for (const char *good : {"7/4/2011", "12/31/1899", "2/29/2020"})
        EXPECT_TRUE(parseDay(QString::fromLatin1(good))) << good;
    for (const char *bad :
         {"", "07/4/2011", "7/4/11", "2/29/2019", "13/1/2011", "7/4/20111", "7-4-2011", " 7/4/2011",
          "7/4/2011\n", "0/1/2011", "7/32/2011", "-7/4/2011", "7/4/2011/1"})
        EXPECT_FALSE(parseDay(QString::fromLatin1(bad))) << bad;
    EXPECT_FALSE(parseDay(QStringLiteral("\u0667/4/2011"))); // An Arabic digit.
}

TEST(Days, TheLastDayIsThatOfTheEasternmostZone)
{
    EXPECT_EQ(latestDay(QDateTime(QDate(2020, 5, 1), QTime(9, 59, 59), Qt::UTC)),
              QDate(2020, 5, 1));
    EXPECT_EQ(latestDay(QDateTime(QDate(2020, 5, 1), QTime(10, 0), Qt::UTC)), QDate(2020, 5, 2));
}

TEST(Form, DecodesOrRefuses)
{
    const auto form = parseForm("a=7%2F4%2f2011&b=x+y&c&d=1=2&&e=%C3%A9");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->value(QStringLiteral("a")), QStringLiteral("7/4/2011"));
    EXPECT_EQ(form->value(QStringLiteral("b")), QStringLiteral("x y"));
    EXPECT_EQ(form->value(QStringLiteral("c")), QString());
    EXPECT_EQ(form->value(QStringLiteral("d")), QStringLiteral("1=2"));
    EXPECT_EQ(form->value(QStringLiteral("e")), QStringLiteral("\u00e9"));
    for (const QByteArray &bad :
         {QByteArray("a=%"), QByteArray("a=%2"), QByteArray("a=%zz"), QByteArray("a=1&a=2"),
          QByteArray("a=%00"), QByteArray("a=%0a"), QByteArray("a=%ff"), QByteArray("a=\xff"),
          QByteArray("a=x\0y", 5), QByteArray("a=1&").repeated(20)})
        EXPECT_FALSE(parseForm(bad)) << bad.toStdString();
}

TEST(PictureNames, ComeApartAsTheyWerePutTogether)
{
    const QString name = pictureName(QStringLiteral("Moon"), QDate(2026, 1, 1), thumbSuffix);
    EXPECT_EQ(name, QStringLiteral("moon-20260101-thumb.jpg"));
    const auto parts = parsePictureName(name);
    ASSERT_TRUE(parts);
    EXPECT_EQ(pictureName(parts->slug, parts->date, parts->suffix), name);
    for (const char *bad :
         {"", "moon", "Moon-20260101-thumb.jpg", "moon-20260230-thumb.jpg", "moon-20260101-",
          "../moon-20260101-thumb.jpg", "moon-20260101-../x.jpg", "moon-20260101-thumb.jpg\n",
          "m/n-20260101-thumb.jpg", "-20260101-thumb.jpg"})
        EXPECT_FALSE(parsePictureName(QString::fromLatin1(bad))) << bad;
}

TEST(Answers, NeverLackACaptionWhereThereIsAPicture)
{
    for (const char *caption : {"", " \n", "No caption today"}) {
        DayPicture day;
        day.caption = QString::fromLatin1(caption);
        const QString answer =
            captionAnswer({QStringLiteral("http://h"), {}, {2020, 1, 1}}, day, {});
        EXPECT_TRUE(answer.startsWith(QLatin1StringView("Untitled\n"))) << caption;
    }
}

TEST(Text, StaysOnOneLineAndIsCut)
{
    EXPECT_EQ(oneLine(QStringLiteral(" a\r\n\tb\u202e\u2028 c "), 10), QStringLiteral("a b c"));
    EXPECT_EQ(oneLine(QStringLiteral("abcdef"), 4), QStringLiteral("abc\u2026"));
    EXPECT_EQ(oneLine(QStringLiteral("ab\U0001F600def"), 4),
              QStringLiteral("ab\u2026")); // No half character.
    EXPECT_EQ(escaped(QStringLiteral("<a b='c' d=\"&\">")),
              QStringLiteral("&lt;a b=&#39;c&#39; d=&quot;&amp;&quot;&gt;"));
}

TEST(Text, OnlyPlainHostsGoIntoLinks)
{
    for (const char *good :
         {"localhost", "127.0.0.1:8642", "pictures.example-1.org:80", "[::1]:8642", "[fe80::1]"})
        EXPECT_TRUE(isPlainHost(good)) << good;
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("a b"), QByteArray("a/b"), QByteArray("a@b"),
          QByteArray("a\r\nX: y"), QByteArray("a:99999"), QByteArray("a:"), QByteArray("a:1:2"),
          QByteArray("<x>"), QByteArray("a\0b", 3), QByteArray("[::1"), QByteArray("-a"),
          QByteArray("a?"), QByteArray(300, 'a'), QByteArray("\xc3\xa9")})
        EXPECT_FALSE(isPlainHost(bad)) << bad.toStdString();
}

} // namespace moravel::server
