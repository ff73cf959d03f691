// SPDX-License-Identifier: MIT
#include "platform/linux/session/NotificationText.h"

#include "support/Test.h"

namespace {

TEST(NotificationText, isFitForDisplay)
{
    const QString face = QString::fromUtf8("\xF0\x9F\x8C\x99"); // two UTF-16 units
    const QChar dots(0x2026);

    const Table<QString, QString, QString, QString> rows{
        {u"Sky\nJuly 4, 2011\nMoon"_s, u"Sky July 4, 2011 Moon"_s, u"Sky\nJuly 4, 2011\nMoon"_s,
         u"Sky\nJuly 4, 2011\nMoon"_s},
        {u"<b>A</b> &amp; \"B\""_s, u"<b>A</b> &amp; \"B\""_s, u"<b>A</b> &amp; \"B\""_s,
         u"&lt;b&gt;A&lt;/b&gt; &amp;amp; \"B\""_s},
        {u"\n\n  \n a \t b\x01\x1b\x7f\n\r\nc"_s, u"a b c"_s, u"a b\nc"_s, u"a b\nc"_s},
        {QString(QChar(0xD83C)) + u'x', u"?x"_s, u"?x"_s, u"?x"_s},
        {QString(100'000, u'<'), QString(199, u'<') + dots, QString(999, u'<') + dots,
         u"&lt;"_s.repeated(999) + dots},
        {face.repeated(50'000), face.repeated(99) + dots, face.repeated(499) + dots,
         face.repeated(499) + dots},
        {u"a\n"_s.repeated(40), u"a "_s.repeated(40).trimmed(), u"a\n"_s.repeated(10).trimmed(),
         u"a\n"_s.repeated(10).trimmed()},
        {QString(100'000, u'\n'), {}, {}, {}},
    };
    for (const auto &[text, title, plain, markup] : rows) {
        SCOPED_TRACE(qPrintable(text.left(40)));
        EXPECT_EQ(notificationTitle(text), title);
        EXPECT_EQ(notificationBody(text, BodyFormat::Plain), plain);
        EXPECT_EQ(notificationBody(text, BodyFormat::Markup), markup);
    }
}

} // namespace
