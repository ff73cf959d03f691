// SPDX-License-Identifier: MIT
#include "text/InfoText.h"

#include "support/Test.h"

#include "text/InfoTextRules.h"
#include "text/RandomText.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

namespace {

TEST(InfoText, KeepsWhatIsAllowedAndNothingElse)
{
    const std::pair<const char *, const char *> cases[] = {
        {"", ""},
        {"5 < 6 & 7 > 2, \"so\" <3 </ >",
         "5 &lt; 6 &amp; 7 &gt; 2, &quot;so&quot; &lt;3 &lt;/ &gt;"},
        {"a &lt;b&gt; &amp;amp; &#60;i&#62; &apos;", "a &lt;b&gt; &amp;amp; &lt;i&gt; '"},
        {"  two\t\n words  ", "two words "},
        {"<b>a<i>b</b>c</i>", "<b>a<i>b</i></b><i>c</i>"},
        {"<strong>a</strong> <em>b</em> <b></b><font color=red>c</font>", "<b>a</b> <i>b</i> c"},
        {"<b onclick='x()' style=\"x\">a", "<b>a</b>"},
        {"<p>a<p>b</p>c", "<p>a</p><p>b</p>c"},
        {"<b>a<p>b</b>c", "<b>a</b><p><b>b</b>c</p>"},
        {"<h1>Title</h1>text", "<p><b>Title</b></p>text"},
        {"<ul><li>a<li>b<ol><li>c</ol></ul>d", "<ul><li>a</li><li>b<ol><li>c</li></ol></li></ul>d"},
        {"<ul>bare</ul><li>stray", "<ul><li>bare</li></ul>stray"},
        {"<blockquote>a</blockquote>b", "<blockquote>a</blockquote>b"},
        {"<div>a</div><div>b</div>c", "a<br>b<br>c"},
        {"<br><br>a<br><br><br><br>b<p></p>c", "a<br><br>b<br>c"},
        {"<table><tr><th>a<td>b<tr><td>c</table>d", "a b<br>c<br>d"},
        {"<pre>a\nb</pre>", "a<br>b"},
        {"<q>a</q>",
         "\xe2\x80\x9c"
         "a\xe2\x80\x9d"},
        {"a<script>b</script>c<STYLE>d</style>e<img src=x alt=f>g<!-- <b> -->h<!-- i",
         "acegh&lt;!-- i"},
        {"a<script>b", "a"},
        {"a\x01\x7f\xef\xbf\xbc\xef\xb7\x90\xe2\x80\xae"
         "b",
         "ab"},
        {"&#x1F600;", "\xf0\x9f\x98\x80"},
    };
    for (const auto &[html, expected] : cases) {
        const QString result = sanitisedInfoText(QString::fromUtf8(html));
        EXPECT_EQ(result, QString::fromUtf8(expected)) << html;
        EXPECT_EQ(faultOfInfoText(result), QString()) << html;
    }
}

TEST(InfoText, LinksLeadToPagesOnly)
{
    const QString page = u"<a href=\"http://x.org/a%20b?c=1&amp;d=%22\">"_s;
    const QString update = u"<a href=\"#updatePODCaption\">"_s;
    const std::pair<const char *, QString> cases[] = {
        {"href=\"http://x.org/a b?c=1&amp;d=&quot;\"", page},
        {"title='>' HREF = ' http://x.org/a%20b?c=1&d=\"'", page},
        {"href=https://x.org/ href=javascript:x", u"<a href=\"https://x.org/\">"_s},
        {"href=#updatePODCaption", update},
        {"href='about:blank#updatePODCaption'", update},
        {"href=javascript:x()", {}},
        {"href='java&#10;script:x()'", {}},
        {"href=file:///etc/passwd", {}},
        {"href=data:text/html,x", {}},
        {"href=//x.org/", {}},
        {"href=http:///x", {}},
        {"href=page.html", {}},
        {"name=http://x.org/", {}},
        {"href", {}},
        {"", {}},
    };
    for (const auto &[attributes, tag] : cases) {
        const QString html = u"<a %1>l</a>"_s.arg(QString::fromUtf8(attributes));
        const QString expected = tag.isEmpty() ? u"l"_s : tag + u"l</a>"_s;
        EXPECT_EQ(sanitisedInfoText(html), expected);
        EXPECT_EQ(faultOfInfoText(sanitisedInfoText(html)), QString()) << attributes;
    }
}

// Laid out 600 pixels wide, as the window shows it.
std::unique_ptr<QTextDocument> shown(const QString &html)
{
    auto document = std::make_unique<QTextDocument>();
    document->setHtml(sanitisedInfoText(html));
    document->setTextWidth(600);
    EXPECT_LE(document->size().width(), 600);
    return document;
}

TEST(InfoText, HostileTextsBecomeSmallDocuments)
{
    const auto tables = shown(u"<table><tr><td>a</td><td>"_s.repeated(20) + u"deep"_s
                              + u"</td></tr></table>"_s.repeated(20));
    EXPECT_TRUE(tables->rootFrame()->childFrames().isEmpty());
    EXPECT_TRUE(tables->toPlainText().trimmed().endsWith(u"deep"_s));

    const auto word = shown(QString(1'000'000, u'x'));
    EXPECT_GT(word->firstBlock().layout()->lineCount(), 100);

    QString links;
    for (int i = 0; i < 10'000; ++i)
        links += u"<a href='http://x.org/%1'>%1</a> "_s.arg(i);
    const QString some = shown(links)->toPlainText();
    EXPECT_TRUE(some.startsWith(u"0 1 2 3 "_s));
    EXPECT_GT(some.size(), 2'000);

    for (const char *nested :
         {"<ul>", "<blockquote>", "<b>", "<p>", "<div>", "<ul><li>", "<a href=http://x>"})
        EXPECT_TRUE(shown(QString::fromUtf8(nested).repeated(100'000) + u'x')
                        ->toPlainText()
                        .endsWith(u'x'));
}

TEST(InfoText, AnyTextIsMadeClean)
{
    const QStringList alphabet =
        u"<b> </b> <i> <p> </p> <ul> </ul> <li> <blockquote> </blockquote> <br> <div> <h1> "
        "</h1> <pre> <a|href=http://x.y/> </a> <script> </script> <!-- --> < > & &lt; &#x200B; "
        "wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww x | \" é"_s.split(u' ')
            .replaceInStrings(u"|"_s, u" "_s);
    std::mt19937 random(7);
    for (int round = 0; round < 2'000; ++round) {
        const QString html = randomText(random, alphabet, round % 100 ? 30 : 4'000);
        const QString fault = faultOfInfoText(sanitisedInfoText(html));
        ASSERT_EQ(fault, QString()) << qPrintable(html.left(500));
    }
}

} // namespace
