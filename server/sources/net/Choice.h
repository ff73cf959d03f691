// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Asking.h"

namespace moravel::server {

/// An address that holds a picture, and the facts of that.
struct Choice
{
    QUrl url;
    PictureFacts facts;
};

/// The first of some addresses, from the most to the least wanted, that holds a picture; else why
/// there is none: @p otherwise they hold "something else".
tl::expected<Choice, Outcome> firstPicture(Asking &asking, const std::vector<QUrl> &urls,
                                           const QString &otherwise);

/// Adds the links of a picture that has one smaller size.
Picture withLinks(Picture picture, const QUrl &smaller, const Choice &full);

/// A number for a source that has no days of its own, the same for the same date and try on every
/// machine, from 1 to @p most.
int chosenNumber(const char *source, QDate date, int attempt, int most);

/// The address with what follows its host replaced.
QUrl below(const QUrl &base, const QString &pathAndQuery);

/// Whether it may be just too early for that day's picture: the day is, or was until a few hours
/// ago, still going on somewhere.
bool mayComeYet(QDate date, const QDateTime &now);

} // namespace moravel::server
