// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Asking.h"

namespace moravel::server {

/// Addresses of one picture from the most to the least wanted; the first that holds a picture is
/// taken, with its facts.
struct Choice
{
    QUrl url;
    PictureFacts facts;
};

std::optional<Choice> firstPicture(Asking &asking, const std::vector<QUrl> &urls);

/// A number for a source that has no days of its own, the same for the same date and try on every
/// machine, from 1 to @p most.
int chosenNumber(const char *source, QDate date, int attempt, int most);

/// The address with what follows its host replaced.
QUrl below(const QUrl &base, const QString &pathAndQuery);

/// Whether it may be just too early for that day's picture: the day is, or was until a few hours
/// ago, still going on somewhere.
bool mayComeYet(QDate date, const QDateTime &now);

} // namespace moravel::server
