// SPDX-License-Identifier: MIT
#include "platform/qt/QtDefaults.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace moravel {

namespace {

QString userFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Moravel"),
                     QStringLiteral("Moravel"))
        .fileName();
}

} // namespace

QtDefaults::QtDefaults(const QString &path)
    : m_settings(path.isEmpty() ? userFile() : path, QSettings::IniFormat)
{ }

std::optional<QString> QtDefaults::text(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

std::optional<QStringList> QtDefaults::list(const QString &key) const
{
    const auto stored = text(key);
    const QJsonDocument json = QJsonDocument::fromJson(stored.value_or(QString()).toUtf8());
    if (!json.isArray())
        return std::nullopt;
    QStringList list;
    for (const QJsonValue &item : json.array()) {
        if (!item.isString())
            return std::nullopt;
        list.append(item.toString());
    }
    return list;
}

std::optional<qint64> QtDefaults::integer(const QString &key) const
{
    bool ok = false;
    const qint64 value = text(key).value_or(QString()).toLongLong(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

std::optional<float> QtDefaults::number(const QString &key) const
{
    bool ok = false;
    const double value = text(key).value_or(QString()).toDouble(&ok);
    const auto narrowed = static_cast<float>(value); // infinite when it is out of range
    if (!ok || (std::isinf(narrowed) && std::isfinite(value)))
        return std::nullopt;
    return narrowed;
}

std::optional<bool> QtDefaults::boolean(const QString &key) const
{
    const QString value = text(key).value_or(QString()).toLower();
    if (value == QLatin1String("true"))
        return true;
    if (value == QLatin1String("false"))
        return false;
    return std::nullopt;
}

void QtDefaults::setList(const QString &key, const QStringList &value)
{
    const QByteArray json =
        QJsonDocument(QJsonArray::fromStringList(value)).toJson(QJsonDocument::Compact);
    m_settings.setValue(key, QString::fromUtf8(json));
}

void QtDefaults::setInteger(const QString &key, qint64 value)
{
    m_settings.setValue(key, QString::number(value));
}

void QtDefaults::setNumber(const QString &key, float value)
{
    // Nine digits tell any two floats apart.
    constexpr int digits = std::numeric_limits<float>::max_digits10;
    m_settings.setValue(key, QString::number(double(value), 'g', digits));
}

void QtDefaults::setBoolean(const QString &key, bool value)
{
    m_settings.setValue(key, value ? QStringLiteral("true") : QStringLiteral("false"));
}

} // namespace moravel
