// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Outcome.h"

namespace moravel::server {

/// What a source said of a day, and how long that holds.
struct StoredAnswer
{
    Outcome outcome;
    QDateTime askedAt;
    QDateTime expires; ///< Invalid when the answer is final.
    int failures = 0; ///< How often the source was down in a row.

    bool holdsAt(const QDateTime &now) const { return !expires.isValid() || now < expires; }
};

/// Keeps answers by source and day. Thread-safe; calls may take seconds when the store is far away
/// or in trouble, and then fail.
class AnswerStore
{
public:
    virtual ~AnswerStore() = default;

    virtual tl::expected<std::optional<StoredAnswer>, QString> find(const QString &source,
                                                                    QDate date) = 0;
    virtual bool put(const QString &source, QDate date, const StoredAnswer &answer) = 0;

    enum class Claim { Mine, Others, Unknown };

    /// Claims the right to ask a source about a day, among all processes on this store. A claim
    /// ends with release(), or with its process.
    virtual Claim claim(const QString &source, QDate date) = 0;
    virtual void release(const QString &source, QDate date) = 0;
};

} // namespace moravel::server
