// SPDX-License-Identifier: MIT
#include "service/Decoding.h"

#include <QStringDecoder>

#include <algorithm>

namespace moravel {

std::optional<QString> decodedUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

QString linkFromAnswer(const QByteArray &answer)
{
    const QByteArray link = answer.trimmed();
    const bool isClean = std::all_of(link.begin(), link.end(), [](char c) {
        constexpr char Delete = 0x7F;
        return c >= ' ' && c < Delete;
    });
    return isClean ? QString::fromLatin1(link) : QString();
}

} // namespace moravel
