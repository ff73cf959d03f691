// SPDX-License-Identifier: MIT
#pragma once

#include <QCryptographicHash>
#include <QStringList>

#include <functional>
#include <random>

namespace moravel::testing {

/// A text of 0 to @p most tokens of @p alphabet.
inline QString randomText(std::mt19937 &random, const QStringList &alphabet, unsigned most)
{
    QString text;
    for (auto left = random() % (most + 1); left > 0; --left)
        text += alphabet[qsizetype(random() % unsigned(alphabet.size()))];
    return text;
}

/// A hash of all that @p operation makes of a hundred thousand texts. Those in the tests were taken when it
/// agreed with a slow and plain one on every text.
inline std::string hashOfResults(const std::function<QString(const QString &)> &operation,
                                 const QStringList &alphabet)
{
    std::mt19937 random(1);
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (int i = 0; i < 100'000; ++i)
        hash.addData((operation(randomText(random, alphabet, 15)) + u'\n').toUtf8());
    return hash.result().toHex().toStdString();
}

} // namespace moravel::testing
