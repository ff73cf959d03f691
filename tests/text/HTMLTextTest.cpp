// SPDX-License-Identifier: MIT
#include "text/HTMLText.h"

#include "support/Test.h"

#include "text/RandomText.h"

namespace {

void expectEach(QString (*operation)(QStringView), const Table<QString, QString> &cases)
{
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(operation(text), expected) << qPrintable(text);
}

TEST(HTMLText, ConvertsToPlainText)
{
    expectEach(
        stringByConvertingHTMLToPlainText,
        {
            {u""_s, u""_s},
            {u"   x   "_s, u"x"_s},
            {u" \t\n\r\u0085\f\u2028\u2029"_s, u""_s},
            {u"a\u00a0 \vb"_s, u"a\u00a0 \vb"_s},
            {u"<p>Hello</p>\n\n<b>big</b> world"_s, u"Hello  big world"_s},
            {u"a<br>b<br/>c</div>d"_s, u"abc d"_s},
            {u"</h1>x"_s, u"x"_s},
            {u"x</h1>y</q1>z</DIV>"_s, u"x yz "_s},
            {u"x</div>"_s, u"x "_s},
            {u"x</div"_s, u"x"_s},
            {u"x</div foo"_s, u"x "_s},
            {u"x</"_s, u"x"_s},
            {u"x</>y</ b>z<"_s, u"x y z"_s},
            {u"1</a>2</B>3</i>4</q>5</Span>6</em>7</STRONG>8</cite>9</abbr>0</acronym>1</label>2"_s,
             u"123456789012"_s},
            {u"1</ab>2</bb>3</labels>4</code>5"_s, u"1 2 3 4 5"_s},
            {u"<!-- note -->Text"_s, u"Text"_s},
            {u"Text<!-- open"_s, u"Text"_s},
            {u"a<!-->b-->c<!--->d-->e<!-x>f"_s, u"acef"_s},
            {u"a<b title='x"_s, u"a"_s},
            {u"A&amp;B &lt;b&gt; &am<i>p;lt;"_s, u"A&B <b> &lt;"_s},
        });
}

TEST(HTMLText, TurnsNewLinesIntoBreaks)
{
    expectEach(stringWithNewLinesAsBRs,
               {
                   {u""_s, u""_s},
                   {u"one\r\ntwo"_s, u"one<br />two"_s},
                   {u"\n\r\n"_s, u"<br /><br /><br />"_s},
                   {u"\r\n\r\n"_s, u"<br /><br />"_s},
                   {u"a\n\nb\rc"_s, u"a<br /><br />b<br />c"_s},
                   {u"\r\n\n\r\nx"_s, u"<br /><br /><br /><br />x"_s},
                   {u"a\u0085\f\u2028\u2029 \tb\v"_s, u"a<br /><br /><br /><br /> \tb\v"_s},
               });
}

TEST(HTMLText, CleansUpWhiteSpaceAndTags)
{
    expectEach(stringByRemovingNewLinesAndWhitespace,
               {
                   {u""_s, u""_s},
                   {u"   x   "_s, u"x"_s},
                   {u" \r\n "_s, u""_s},
                   {u"a\n\tb  c\u2028"_s, u"a b c"_s},
                   {u"\u00a0 a"_s, u"\u00a0 a"_s},
               });
    expectEach(stringByStrippingTags,
               {
                   {u""_s, u""_s},
                   {u"  no  tags > "_s, u"  no  tags > "_s},
                   {u"<a>x</a><span>y</span><strong>z</strong><em>!</em>"_s, u"xyz!"_s},
                   {u"1<a href='u'>2</A>3<br>4<p>5</p>"_s, u"1 2 3 4 5"_s},
                   {u" a  <b"_s, u"a <b"_s},
                   {u"1<x<a>2<a>3<>4"_s, u"1 23 4"_s},
                   {u"1&lt;2<!-- 3 > 4 -->"_s, u"1&lt;2 4 -->"_s},
               });
}

TEST(HTMLText, ConversionOfAnyTextStaysAsItIs)
{
    const QString alphabet =
        u"<|<|</|>|>|/|!--|-->|-|a|B|div|em|SPAN|<a>|</em>|<x<a>| |\r\n|\u0085|"
        "\u2028|\u00a0|&|lt;|é|h1|\t|\U0001F600"_s;
    const Table<QString (*)(QStringView), const char *> cases{
        {stringByConvertingHTMLToPlainText, "6aa2743567044db8eb5fa127b57cd075"},
        {stringByRemovingNewLinesAndWhitespace, "4f6d12dd6819100304006b2ca3461a3d"},
        {stringByStrippingTags, "f85e0d1384c2af0b9646db333960e631"},
    };
    for (const auto &[operation, hash] : cases)
        EXPECT_EQ(hashOfResults(operation, alphabet.split(u'|')), hash);
}

// Anything worse than linear would run into the time limit of the test: 2 million units a text.
TEST(HTMLText, StaysLinearOnHostileText)
{
    QString manyTags;
    for (int i = 0; i < 250'000; ++i)
        manyTags += u"<t%1>"_s.arg(i);
    QStringList texts{manyTags};
    for (const QString &part :
         {u"<"_s, u"&"_s, u"&#"_s, u"&a"_s, u"&aaaaaaaa"_s, u"<!--"_s, u"</"_s, u"\r\n"_s, u" "_s,
          u"</b"_s, u"<a"_s, u"<>"_s, u"&lt;"_s, u"a"_s, u"<!-- -- "_s}) {
        texts += part.repeated(2'000'000 / part.size());
        texts += u"x</"_s + texts.constLast();
        texts += texts.constLast() + u"-->;"_s;
    }
    for (const QString &text : texts) {
        EXPECT_LE(stringByConvertingHTMLToPlainText(text).size(), text.size());
        EXPECT_LE(stringByDecodingHTMLEntities(text).size(), text.size());
        EXPECT_LE(stringByStrippingTags(text).size(), text.size());
        EXPECT_LE(stringByRemovingNewLinesAndWhitespace(text).size(), text.size());
        EXPECT_GE(stringWithNewLinesAsBRs(text).size(), text.size());
        EXPECT_GE(stringByEncodingHTMLEntities(text).size(), text.size());
    }
}

} // namespace
