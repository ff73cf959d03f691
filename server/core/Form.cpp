// SPDX-License-Identifier: MIT
#include "server/core/Form.h"

#include <QStringDecoder>

#include <algorithm>

namespace moravel::server {

namespace {

constexpr qsizetype maxFields = 16;

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool hasBrokenEscape(const QByteArray &text)
{
    for (qsizetype at = text.indexOf('%'); at >= 0; at = text.indexOf('%', at + 3)) {
        if (at + 2 >= text.size() || !isHexDigit(text[at + 1]) || !isHexDigit(text[at + 2]))
            return true;
    }
    return false;
}

} // namespace

std::optional<QString> percentDecoded(const QByteArray &text)
{
    if (hasBrokenEscape(text))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder.decode(QByteArray::fromPercentEncoding(text));
    const bool control = std::any_of(decoded.begin(), decoded.end(),
                                     [](QChar c) { return c.category() == QChar::Other_Control; });
    if (decoder.hasError() || control)
        return std::nullopt;
    return decoded;
}

std::optional<QHash<QString, QString>> parseForm(const QByteArray &text)
{
    QHash<QString, QString> fields;
    const QList<QByteArray> parts = text.split('&');
    if (parts.size() > maxFields)
        return std::nullopt;
    for (QByteArray part : parts) {
        if (part.isEmpty())
            continue;
        part.replace('+', ' ');
        const qsizetype equals = part.indexOf('=');
        const auto key = percentDecoded(equals < 0 ? part : part.left(equals));
        const auto value = percentDecoded(equals < 0 ? QByteArray() : part.mid(equals + 1));
        if (!key || !value || fields.contains(*key))
            return std::nullopt;
        fields.insert(*key, *value);
    }
    return fields;
}

} // namespace moravel::server
