// SPDX-License-Identifier: MIT
// From an info text as it comes to lines laid out 600 pixels wide, as the large picture window does it. The
// honest text is as long as one can be: what the hostile ones take is to be read against it.
#include "text/InfoText.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <benchmark/benchmark.h>

namespace {

QString honest()
{
    return QStringLiteral("<p>The boats by the <a href='http://example.org/harbour'>harbour</a>, "
                          "<i>seen</i> from "
                          "the old lighthouse at dusk; the boats have come in.</p>")
        .repeated(300);
}

QString nestedTables()
{
    return QStringLiteral("<table><tr><td>a</td><td>").repeated(20) + QStringLiteral("deep")
        + QStringLiteral("</td></tr></table>").repeated(20);
}

QString longWord()
{
    return QString(1'000'000, u'x');
}

QString manyLinks()
{
    QString links;
    for (int i = 0; i < 10'000; ++i)
        links += QStringLiteral("<a href='http://example.org/%1'>%1</a> ").arg(i);
    return links;
}

QString manyItems()
{
    return QStringLiteral("<ul><li>x").repeated(100'000);
}

QString manyMarks()
{
    return (u'a' + QString(200, QChar(0x0301))).repeated(5'000);
}

QString manyScripts()
{
    QString text;
    for (char32_t character = 0x100; character < 0x20000; character += 7)
        text += QString::fromUcs4(&character, 1);
    return text;
}

// Four million characters in which the sanitiser finds nothing to show.
QString nothing()
{
    return QStringLiteral("<b><p><!-- --></b><a href=\"x\"").repeated(140'000);
}

void show(benchmark::State &state, const QString &html)
{
    for (auto round : state) {
        QTextDocument document;
        document.setHtml(moravel::sanitisedInfoText(html));
        document.setTextWidth(600);
        benchmark::DoNotOptimize(document.size());
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    for (const auto &[name, text] :
         {std::pair("honest", honest()), std::pair("nested tables", nestedTables()),
          std::pair("long word", longWord()), std::pair("many links", manyLinks()),
          std::pair("many items", manyItems()), std::pair("many marks", manyMarks()),
          std::pair("many scripts", manyScripts()), std::pair("nothing", nothing())})
        benchmark::RegisterBenchmark(name, show, text)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
