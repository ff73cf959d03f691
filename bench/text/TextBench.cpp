// SPDX-License-Identifier: MIT
// The text operations on documents of 1 MB. The rate counts the document's bytes in UTF-8, which is
// how it comes from the network (in memory it is UTF-16, nearly twice as many).
#include "text/GTMNSString+HTML.h"
#include "text/HTMLText.h"

#include <QByteArray>

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype documentBytes = 1'000'000;

QString filledWith(const char *part)
{
    const QByteArray bytes(part);
    return QString::fromUtf8(bytes.repeated(documentBytes / bytes.size() + 1));
}

// A page of prose: paragraphs, a few inline tags and links, entities and accents here and there.
QString page()
{
    return filledWith(
        "<p class=\"caption\">The caf\xc3\xa9 by the harbour, <em>seen</em> from the old "
        "lighthouse at dusk; the boats have come in &amp; the nets are drying.</p>\n"
        "<p>Picture: <a href=\"http://example.org/pictures/2011/07/04\">J.&nbsp;Doe</a> "
        "&mdash; taken with a long exposure &#40;30&#160;s&#41; in light rain.<br />\n"
        "  More of the series is in the archive.</p>\n<!-- end of the entry -->\n");
}

// An entity every ten bytes: 100,000 of them.
QString entities()
{
    return filledWith("abc &amp; &nbsp;wxyz&#233;defg&ntilde;hi");
}

QString plain()
{
    return filledWith("Boats in the harbour under a low sun, seen from the lighthouse. ");
}

QString hostile()
{
    return filledWith("&<&");
}

template <typename Operation>
void measure(benchmark::State &state, const QString &document, Operation operation)
{
    for (auto round : state) {
        QString result = operation(document);
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations())
                            * document.toUtf8().size());
}

using namespace moravel;

#define MORAVEL_BENCH(operation, document)                                                         \
    BENCHMARK_CAPTURE(measure, operation##_##document, document(), operation)                      \
        ->Unit(benchmark::kMillisecond)

MORAVEL_BENCH(stringByDecodingHTMLEntities, page);
MORAVEL_BENCH(stringByDecodingHTMLEntities, entities);
MORAVEL_BENCH(stringByDecodingHTMLEntities, plain);
MORAVEL_BENCH(stringByDecodingHTMLEntities, hostile);
MORAVEL_BENCH(stringByConvertingHTMLToPlainText, page);
MORAVEL_BENCH(stringByConvertingHTMLToPlainText, entities);
MORAVEL_BENCH(stringByConvertingHTMLToPlainText, plain);
MORAVEL_BENCH(stringByConvertingHTMLToPlainText, hostile);
MORAVEL_BENCH(stringByStrippingTags, page);
MORAVEL_BENCH(stringWithNewLinesAsBRs, page);
MORAVEL_BENCH(gtm_stringByEscapingForHTML, page);
MORAVEL_BENCH(gtm_stringByEscapingForAsciiHTML, page);

} // namespace
