// SPDX-License-Identifier: MIT
#include "service/DownloadTexts.h"

#include "platform/Texts.h"

#include <algorithm>

namespace moravel {

namespace {

QString sourceText(const DownloadProgress &progress)
{
    return progress.source.isNull() ? QStringLiteral("(null)") : progress.source;
}

} // namespace

qint64 DownloadProgress::kbReceived() const
{
    return std::min(bytesReceived / 1024, kbExpected());
}

std::optional<float> DownloadProgress::percent() const
{
    if (bytesExpected < 0)
        return std::nullopt;
    if (bytesExpected == 0)
        return 100.0F;
    return static_cast<float>(bytesReceived) / static_cast<float>(bytesExpected) * 100.0F;
}

QString downloadStatusText(const DownloadProgress &progress)
{
    return Texts::tr("Downloading pic from %1: %2 of %3 KB")
        .arg(sourceText(progress), Texts::number(progress.kbReceived()),
             Texts::number(progress.kbExpected()));
}

QString downloadWindowText(const DownloadProgress &progress)
{
    if (progress.kbReceived() == progress.kbExpected())
        return Texts::tr("Saving pic from %1...").arg(sourceText(progress));
    return downloadStatusText(progress);
}

} // namespace moravel
