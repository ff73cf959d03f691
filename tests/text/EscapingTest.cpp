// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "text/GTMNSString+HTML.h"
#include "text/RandomText.h"

namespace {

TEST(Escaping, UnescapesReferences)
{
    const Table<QString, QString> cases{
        {u""_s, u""_s},
        {u"no reference; at all"_s, u"no reference; at all"_s},
        {u"&amp;lt;"_s, u"&lt;"_s},
        {u"&&amp;&amp;amp;&"_s, u"&&&amp;&"_s},
        {u"&#38;#38;"_s, u"&#38;"_s},
        {u"&#65;&#x42;&#X43;&#x00e9;"_s, u"ABCé"_s},
        {u"&#0;&#65535;&#65536;&#x0;&#xFFFF;&#x10000;"_s,
         u"&#0;&#65535;&#65536;&#x0;&#xFFFF;&#x10000;"_s},
        {u"&#1;&#65534;&#xfffe;"_s, u"\u0001\ufffe\ufffe"_s},
        {u"&#55357;&#56832;"_s, u"\U0001F600"_s},
        {u"&#x0001F600;&#x000041;&#x0000041;"_s, u"&#x0001F600;A&#x0000041;"_s},
        {u"&#0000065;&#00000065;"_s, u"A&#00000065;"_s},
        {u"&#x41 ;&#65 ;&#x 41;&# 65;&#\n65;"_s, u"&#x41 ;&#65 ;AAA"_s},
        {u"&#\u00a065;&#x\u00a041;"_s, u"&#\u00a065;&#x\u00a041;"_s},
        {u"&#+65;&#-65;&#+ 65;&#x+41;&#++65;"_s, u"A&#-65;&#+ 65;&#x+41;&#++65;"_s},
        {u"&#x;&#;&# ;&#xg;&#a;&#6a;&#x0x41;"_s, u"&#x;&#;&# ;&#xg;&#a;&#6a;&#x0x41;"_s},
        {u"&#\u0666\u0665;"_s, u"&#\u0666\u0665;"_s}, // digits, but not ASCII
        {u"&nbsp;&160;&161;"_s, u"\u00a0\u00a0&161;"_s},
        {u"&AMP;&lt &gt;&l t;&lt\u0000;&\u0000lt;&;&a;"_s,
         u"&AMP;&lt >&l t;&lt\u0000;&\u0000lt;&;&a;"_s},
        {u"&thetasym;&thetasymm;&\u0174t;"_s, u"\u03d1&thetasymm;&\u0174t;"_s}, // U+0174 is no "t"
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(gtm_stringByUnescapingFromHTML(text), expected) << qPrintable(text);
}

TEST(Escaping, EscapesByTable)
{
    const Table<QString, QString, QString> cases{
        {u""_s, u""_s, u""_s},
        {u"<a&b>"_s, u"&lt;a&amp;b&gt;"_s, u"&lt;a&amp;b&gt;"_s},
        {u"\"it's\"\t\x7f"_s, u"&quot;it&apos;s&quot;\t\x7f"_s, u"&quot;it&apos;s&quot;\t\x7f"_s},
        {u"é\u0101\u0080"_s, u"é\u0101\u0080"_s, u"&eacute;&#257;&#128;"_s},
        {u"\u00a0\u2026\u2014\u20ac"_s, u"\u00a0\u2026&mdash;&euro;"_s,
         u"&nbsp;&hellip;&mdash;&euro;"_s},
        {u"x\U0001F600y\uffff"_s, u"x\U0001F600y\uffff"_s, u"x&#55357;&#56832;y&#65535;"_s},
    };
    for (const auto &[text, forHTML, forAscii] : cases) {
        SCOPED_TRACE(qPrintable(text));
        EXPECT_EQ(gtm_stringByEscapingForHTML(text), forHTML);
        EXPECT_EQ(gtm_stringByEscapingForAsciiHTML(text), forAscii);
    }
    EXPECT_EQ(gtm_stringByEscapingHTMLUsingTable(u"<é&", {}, EscapingUnicode::Yes), u"<&#233;&");
    EXPECT_EQ(gtm_stringByEscapingHTMLUsingTable(u"<é&", fullHTMLEscapeTable, EscapingUnicode::No),
              u"&lt;&eacute;&amp;");
}

TEST(Escaping, EveryRowOfTheFullTableIsReadAndTheFirstOfAUnitIsWritten)
{
    char16_t previous = 0;
    for (const HTMLEscapeRow &row : fullHTMLEscapeTable) {
        const QString entity = QStringView(row.entity).toString();
        SCOPED_TRACE(qPrintable(entity));
        EXPECT_EQ(gtm_stringByUnescapingFromHTML(entity), QString(QChar(row.unit)));
        if (row.unit != previous) {
            EXPECT_EQ(gtm_stringByEscapingForAsciiHTML(QString(QChar(row.unit))), entity);
        }
        previous = row.unit;
    }
}

TEST(Escaping, UnescapingOfAnyTextStaysAsItIs)
{
    const QString alphabet = u"&|&|&#|#|x|X|;|;|0|6|a|A| |lt|t|amp|160|65|53|nbsp|+|-|\t|\u00a0|"
                             "\u0000|\u0661|thetasym|\u2029|\v"_s;
    EXPECT_EQ(hashOfResults(gtm_stringByUnescapingFromHTML, alphabet.split(u'|')),
              "4e3971f300b1a054e37ba4faf985bbca");
}

TEST(Escaping, UnescapingUndoesEscaping)
{
    std::mt19937 random(2);
    for (int i = 0; i < 3'000; ++i) {
        QString text;
        for (auto left = random() % 40; left > 0;
             --left) // U+FFFF alone has no reference that is read back
            text += QChar(static_cast<char16_t>(random() % (random() % 2 ? 0x100U : 0xffffU)));
        ASSERT_EQ(gtm_stringByUnescapingFromHTML(gtm_stringByEscapingForAsciiHTML(text)), text);
        ASSERT_EQ(gtm_stringByUnescapingFromHTML(gtm_stringByEscapingForHTML(text)), text);
    }
}

} // namespace
