// SPDX-License-Identifier: MIT
#include "app/CurrentPicture.h"

#include "base/Dates.h"
#include "platform/Texts.h"
#include "thumb/ThumbView.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace moravel {

namespace {

struct Field
{
    QString key;
    QString title; ///< Of its line in the text.
};

const QList<Field> &fields()
{
    static const QList<Field> list{
        {QStringLiteral("source"), Texts::tr("Source:")},
        {QStringLiteral("date"), Texts::tr("Date:")},
        {QStringLiteral("caption"), Texts::tr("Caption:")},
        {QStringLiteral("path"), Texts::tr("File:")},
        {QStringLiteral("page"), Texts::tr("Page:")},
    };
    return list;
}

QString printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format)
            c = u' ';
    }
    return text;
}

} // namespace

QVariantMap currentPicture(const QString &path, const ThumbView &desktopCell, const Dates &dates)
{
    QVariantMap picture;
    for (const Field &field : fields())
        picture.insert(field.key, QString());
    picture[QStringLiteral("path")] = path;
    if (desktopCell.picPath() != path)
        return picture;
    const auto day = dates.dateFromLocalString(desktopCell.dateString());
    picture[QStringLiteral("source")] = desktopCell.longSourceName();
    picture[QStringLiteral("date")] = day ? day->date().toString(Qt::ISODate) : QString();
    picture[QStringLiteral("caption")] = desktopCell.captionString();
    picture[QStringLiteral("page")] = desktopCell.parentPath();
    return picture;
}

QString pictureText(const QVariantMap &picture)
{
    qsizetype column = 0;
    for (const Field &field : fields())
        column = std::max(column, field.title.size() + 1);
    QString text;
    for (const Field &field : fields()) {
        const QString value = picture.value(field.key).toString();
        if (!value.isEmpty())
            text += field.title.leftJustified(column) + printable(value) + u'\n';
    }
    return text;
}

QByteArray pictureJson(const QVariantMap &picture)
{
    QJsonObject object;
    for (const Field &field : fields())
        object.insert(field.key, picture.value(field.key).toString());
    return QJsonDocument(object).toJson();
}

} // namespace moravel
