// SPDX-License-Identifier: MIT
#include "server/sources/net/Choice.h"

#include <QCryptographicHash>

namespace moravel::server {

tl::expected<Choice, Outcome> firstPicture(Asking &asking, const std::vector<QUrl> &urls,
                                           const QString &otherwise)
{
    Outcome why = NotAPicture{otherwise};
    for (const QUrl &url : urls) {
        const auto facts = asking.probe(url);
        if (facts)
            return Choice{url, *facts};
        if (!std::holds_alternative<NotAPicture>(facts.error()))
            why = facts.error();
    }
    return tl::unexpected(why);
}

Picture withLinks(Picture picture, const QUrl &smaller, const Choice &full)
{
    picture.thumb = picture.normal = smaller.toString(QUrl::FullyEncoded);
    picture.full = full.url.toString(QUrl::FullyEncoded);
    picture.fullSize = full.facts.size;
    picture.fullMegabytes = full.facts.megabytes;
    return picture;
}

int chosenNumber(const char *source, QDate date, int attempt, int most)
{
    const QByteArray text =
        QByteArray(source) + date.toString(Qt::ISODate).toLatin1() + QByteArray::number(attempt);
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    return static_cast<int>(hash.left(7).toHex().toULongLong(nullptr, 16)
                            % static_cast<unsigned>(most))
        + 1;
}

QUrl below(const QUrl &base, const QString &pathAndQuery)
{
    QString root = base.toString(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
    return QUrl(root + pathAndQuery);
}

bool mayComeYet(QDate date, const QDateTime &now)
{
    constexpr int hoursOfGrace = 36; // The day ends at UTC-12, and some publish late.
    return now < QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(hoursOfGrace * 3600);
}

} // namespace moravel::server
