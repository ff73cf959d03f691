// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace moravel {

/// The per-user defaults store: typed values by key, each set written at once in the store's own time.
/// A value of another type than the one asked for reads as absent.
class Defaults
{
public:
    virtual ~Defaults() = default;

    /// Returns the list under @p key; nothing when none was ever stored. A stored empty list and a
    /// list of one empty string come back as they were stored.
    virtual std::optional<QStringList> list(const QString &key) const = 0;
    virtual std::optional<qint64> integer(const QString &key) const = 0;
    virtual std::optional<float> number(const QString &key) const = 0;
    virtual std::optional<bool> boolean(const QString &key) const = 0;

    virtual void setList(const QString &key, const QStringList &value) = 0;
    virtual void setInteger(const QString &key, qint64 value) = 0;
    virtual void setNumber(const QString &key, float value) = 0;
    virtual void setBoolean(const QString &key, bool value) = 0;
};

} // namespace moravel
