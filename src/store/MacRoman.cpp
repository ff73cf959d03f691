// SPDX-License-Identifier: MIT
#include "store/MacRoman.h"

#include "store/Logging.h"

#include <algorithm>
#include <array>
#include <unicode/ucnv.h>

namespace moravel::macroman {

namespace {

using Table = std::array<char16_t, 256>;

Table makeTable()
{
    std::array<char, 256> bytes{};
    Table table{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = char(i);
        table[i] = char16_t(i);
    }
    UErrorCode status = U_ZERO_ERROR;
    UConverter *converter = ucnv_open("macintosh", &status);
    // 256 characters fill the table without a closing NUL, which ICU reports as a warning.
    ucnv_toUChars(converter, table.data(), int32_t(table.size()), bytes.data(),
                  int32_t(bytes.size()), &status);
    ucnv_close(converter);
    if (U_FAILURE(status)) // reads as Latin-1 then; every byte is still written back as it was
        qCWarning(lcStore, "no Mac OS Roman character set: %s", u_errorName(status));
    return table;
}

const Table &table()
{
    static const Table made = makeTable();
    return made;
}

} // namespace

QString decode(std::string_view bytes)
{
    QString text(qsizetype(bytes.size()), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char c) { return QChar(table()[static_cast<unsigned char>(c)]); });
    return text;
}

std::optional<QByteArray> encode(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const auto at = std::find(table().begin(), table().end(), c.unicode());
        if (at == table().end())
            return std::nullopt;
        bytes += char(at - table().begin());
    }
    return bytes;
}

} // namespace moravel::macroman
