// SPDX-License-Identifier: MIT
#include "platform/linux/session/NotificationText.h"

#include <gtest/gtest.h>

namespace moravel {

namespace {

TEST(NotificationText, isFitForDisplay)
{
    const QString face = QString::fromUtf8("\xF0\x9F\x8C\x99"); // two UTF-16 units
    const QChar dots(0x2026);

    const struct
    {
        QString text, title, plain, markup;
    } rows[] = {
        {QStringLiteral("Sky\nJuly 4, 2011\nMoon"), QStringLiteral("Sky July 4, 2011 Moon"),
         QStringLiteral("Sky\nJuly 4, 2011\nMoon"), QStringLiteral("Sky\nJuly 4, 2011\nMoon")},
        {QStringLiteral("<b>A</b> &amp; \"B\""), QStringLiteral("<b>A</b> &amp; \"B\""),
         QStringLiteral("<b>A</b> &amp; \"B\""),
         QStringLiteral("&lt;b&gt;A&lt;/b&gt; &amp;amp; \"B\"")},
        {QStringLiteral("\n\n  \n a \t b\x01\x1b\x7f\n\r\nc"), QStringLiteral("a b c"),
         QStringLiteral("a b\nc"), QStringLiteral("a b\nc")},
        {QString(QChar(0xD83C)) + u'x', QStringLiteral("?x"), QStringLiteral("?x"),
         QStringLiteral("?x")},
        {QString(100'000, u'<'), QString(199, u'<') + dots, QString(999, u'<') + dots,
         QStringLiteral("&lt;").repeated(999) + dots},
        {face.repeated(50'000), face.repeated(99) + dots, face.repeated(499) + dots,
         face.repeated(499) + dots},
        {QStringLiteral("a\n").repeated(40), QStringLiteral("a ").repeated(40).trimmed(),
         QStringLiteral("a\n").repeated(10).trimmed(),
         QStringLiteral("a\n").repeated(10).trimmed()},
        {QString(100'000, u'\n'), {}, {}, {}},
    };

    for (const auto &row : rows) {
        SCOPED_TRACE(qPrintable(row.text.left(40)));
        EXPECT_EQ(notificationTitle(row.text), row.title);
        EXPECT_EQ(notificationBody(row.text, BodyFormat::Plain), row.plain);
        EXPECT_EQ(notificationBody(row.text, BodyFormat::Markup), row.markup);
    }
}

} // namespace

} // namespace moravel
