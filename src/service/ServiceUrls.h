// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

namespace moravel {

/// The addresses of the picture-of-the-day service. Days are Short dates ("7/4/2011").
class ServiceUrls
{
public:
    /// @p base is an absolute http URL without a trailing slash.
    explicit ServiceUrls(QString base);

    QString base() const { return m_base; }

    QString sources() const;
    /// The news, with the moment as a time stamp, so that no cache answers.
    QString news(const QDateTime &moment) const;
    /// All data of a picture; the day's slashes are escaped, since this query becomes a form body.
    QString all(const QString &shortSource, const QString &day) const;
    QString refreshAll(const QString &shortSource, const QString &day) const;
    /// The look-ups keep the day's slashes.
    QString parent(const QString &shortSource, const QString &day) const;
    QString thumb(const QString &shortSource, const QString &day) const;
    QString captionPlusText(const QString &shortSource, const QString &day) const;

private:
    QString query(const QString &option, const QString &shortSource, const QString &day) const;

    QString m_base;
};

} // namespace moravel
