// SPDX-License-Identifier: MIT
// The text operations in their plainest form: backward walk, set of tags, cursor. Slow, and
// obviously right; the fast ones must agree with them on every text.
#pragma once

#include <QString>
#include <QStringList>

#include <random>

namespace moravel::testing {

QString slowlyUnescaped(const QString &text);
QString slowlyPlainText(const QString &html);
QString slowlyWithoutWhiteSpace(const QString &text);
QString slowlyStrippedOfTags(const QString &html);

/// A text of 0 to \a most tokens of \a alphabet.
inline QString randomText(std::mt19937 &random, const QStringList &alphabet, unsigned most)
{
    QString text;
    for (auto left = random() % (most + 1); left > 0; --left)
        text +=
            alphabet.at(static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size())));
    return text;
}

} // namespace moravel::testing
