// SPDX-License-Identifier: MIT
#include "service/Decoding.h"

#include <QStringDecoder>

namespace moravel {

std::optional<QString> decodedUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace moravel
