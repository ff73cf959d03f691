// SPDX-License-Identifier: MIT
// Feeds the sanitiser of info texts with anything: half the inputs as UTF-8, half as raw UTF-16 units (lone
// surrogates), many of them repeated until they pass the size limit.
#include "text/InfoTextRules.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    const int mode = data[0];
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1),
                           static_cast<qsizetype>(size - 1));
    QString text = QString::fromUtf8(bytes);
    if (mode & 1) {
        text.resize(bytes.size() / 2);
        std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * 2);
    }
    if (mode & 2)
        text = text.repeated(1 + 8 * (mode >> 2));
    const QString fault = moravel::testing::faultOfInfoText(moravel::sanitisedInfoText(text));
    if (fault.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
    std::abort();
}
