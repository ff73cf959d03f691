// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/DesktopRecord.h"

#include "platform/linux/desktops/DesktopLog.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace moravel {

namespace {

constexpr qint64 MaxBytes = 1024 * 1024;
constexpr int MaxScreens = 64;
const std::array<QLatin1String, 3> Scalings{QLatin1String("centred"), QLatin1String("fit"),
                                            QLatin1String("fill")};

DesktopScaling scalingFrom(const QString &text)
{
    for (std::size_t i = 0; i < Scalings.size(); ++i) {
        if (text == Scalings[i])
            return static_cast<DesktopScaling>(i);
    }
    return DesktopScaling::Fill;
}

} // namespace

QByteArray recordBytes(const DesktopRecord &record)
{
    QJsonObject screens;
    for (auto it = record.screens.begin(); it != record.screens.end(); ++it) {
        screens[it.key()] = QJsonObject{
            {QStringLiteral("path"), it->path},
            {QStringLiteral("scaling"), QString(Scalings[static_cast<std::size_t>(it->scaling)])},
            {QStringLiteral("owner"), it->owner},
            {QStringLiteral("ownerStart"), it->ownerStart},
        };
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("owner"), record.owner},
                                     {QStringLiteral("screens"), screens}})
        .toJson();
}

DesktopRecord recordFromBytes(const QByteArray &bytes)
{
    const QJsonObject all = QJsonDocument::fromJson(bytes).object();
    DesktopRecord record;
    record.owner = all[QLatin1String("owner")].toInteger();
    const QJsonObject screens = all[QLatin1String("screens")].toObject();
    for (auto it = screens.begin(); it != screens.end() && record.screens.size() < MaxScreens;
         ++it) {
        const QJsonObject entry = it.value().toObject();
        const QString path = entry[QLatin1String("path")].toString();
        if (path.startsWith(u'/') && !path.contains(QChar(u'\0')))
            record.screens[it.key()] = {path,
                                        scalingFrom(entry[QLatin1String("scaling")].toString()),
                                        entry[QLatin1String("owner")].toInteger(),
                                        entry[QLatin1String("ownerStart")].toInteger()};
    }
    return record;
}

DesktopRecord DesktopRecordFile::read() const
{
    if (!m_files.exists(m_path))
        return {};
    const auto file = m_files.open(m_path);
    if (!file) {
        qCWarning(desktopsLog) << "cannot read" << m_path << file.error().description;
        return {};
    }
    const std::string_view bytes = (*file)->bytes();
    if (static_cast<qint64>(bytes.size()) > MaxBytes)
        return {};
    return recordFromBytes(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

void DesktopRecordFile::write(const DesktopRecord &record) const
{
    const QByteArray bytes = recordBytes(record);
    const auto folder = m_files.makeFolder(m_path.left(m_path.lastIndexOf(u'/')));
    const auto written = folder ? m_files.writeAtomically(
                             m_path, {std::string_view(bytes.data(), std::size_t(bytes.size()))})
                                : folder;
    if (!written)
        qCWarning(desktopsLog) << "cannot write" << m_path << written.error().description;
}

} // namespace moravel
