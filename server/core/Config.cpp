// SPDX-License-Identifier: MIT
#include "server/core/Config.h"

#include "server/core/SourceList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <arpa/inet.h>
#include <array>

namespace moravel::server {

namespace {

using Check = tl::expected<void, QString>;

/// Takes values out of one JSON object by key and remembers the first that is not what it should
/// be; what is left at the end is unknown.
class Reader
{
public:
    Reader(QJsonObject object, QString where)
        : m_object(std::move(object)), m_where(std::move(where))
    { }

    void text(const char *key, QString &into, bool required = false)
    {
        const QJsonValue value = take(key);
        if (value.isString() && !(required && value.toString().isEmpty()))
            into = value.toString();
        else if (required || !value.isUndefined())
            fail(key, required ? "must be a text that is not empty" : "must be a text");
    }

    qint64 integer(const char *key, qint64 otherwise, qint64 from, qint64 to)
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return otherwise;
        const double number = value.toDouble(-1);
        if (!value.isDouble() || number < static_cast<double>(from)
            || number > static_cast<double>(to)
            || number != static_cast<double>(static_cast<qint64>(number))) {
            fail(key,
                 qPrintable(
                     QStringLiteral("must be a whole number from %1 to %2").arg(from).arg(to)));
            return otherwise;
        }
        return static_cast<qint64>(number);
    }

    QJsonValue take(const char *key) { return m_object.take(QLatin1StringView(key)); }

    void fail(const char *key, const char *what)
    {
        if (m_error.isEmpty())
            m_error = QStringLiteral("\"%1\"%2 %3")
                          .arg(QLatin1StringView(key), m_where, QString::fromUtf8(what));
    }

    void fail(const QString &error)
    {
        if (m_error.isEmpty())
            m_error = error;
    }

    Check finish()
    {
        if (m_error.isEmpty() && !m_object.isEmpty())
            m_error =
                QStringLiteral("unknown key \"%1\"%2").arg(m_object.keys().constFirst(), m_where);
        return m_error.isEmpty() ? Check() : tl::unexpected(m_error);
    }

private:
    QJsonObject m_object;
    QString m_where;
    QString m_error;
};

tl::expected<FolderSetup, QString> readFolder(const QJsonValue &value, const QDir &base)
{
    if (!value.isObject())
        return tl::unexpected(QStringLiteral("each of \"folderSources\" must be an object"));
    Reader reader(value.toObject(), QStringLiteral(" in \"folderSources\""));
    FolderSetup folder;
    reader.text("shortName", folder.shortName, true);
    reader.text("longName", folder.longName, true);
    reader.text("path", folder.path, true);
    reader.text("credit", folder.credit);
    reader.text("licence", folder.licence);
    if (!isShortName(folder.shortName))
        reader.fail("shortName", "must be 1 to 32 letters from A to Z and a to z");
    folder.path = QDir::cleanPath(base.absoluteFilePath(folder.path));
    if (const Check ok = reader.finish(); !ok)
        return tl::unexpected(ok.error());
    return folder;
}

void readComputed(Reader &reader, Config &config)
{
    const QJsonValue value = reader.take("computedSources");
    if (!value.isUndefined() && !value.isObject())
        return reader.fail("computedSources", "must be an object of names and true or false");
    const QJsonObject switches = value.toObject();
    for (auto it = switches.begin(); it != switches.end(); ++it) {
        if (!it.value().isBool())
            return reader.fail("computedSources", "must hold only true and false");
        config.computedSources.insert(it.key(), it.value().toBool());
    }
}

void readFolders(Reader &reader, Config &config, const QDir &base)
{
    const QJsonValue value = reader.take("folderSources");
    if (!value.isUndefined() && !value.isArray())
        return reader.fail("folderSources", "must be a list");
    const QJsonArray folders = value.toArray();
    for (const auto &item : folders) {
        auto folder = readFolder(item, base);
        if (!folder)
            return reader.fail(folder.error());
        config.folderSources.append(*folder);
    }
}

tl::expected<Config, QString> readObject(const QJsonObject &object, const QDir &base)
{
    constexpr qint64 leastCache = 1 << 20;
    constexpr qint64 mostCache = qint64(1) << 50;
    Config config;
    Reader reader(object, {});
    reader.text("bind", config.bind);
    if (!isNumericAddress(config.bind))
        reader.fail("bind", "must be a numeric address such as 127.0.0.1");
    config.port = static_cast<int>(reader.integer("port", config.port, 0, 65535));
    config.cacheBytes = reader.integer("cacheBytes", config.cacheBytes, leastCache, mostCache);
    reader.text("newsFile", config.newsFile);
    if (!config.newsFile.isEmpty())
        config.newsFile = QDir::cleanPath(base.absoluteFilePath(config.newsFile));
    readComputed(reader, config);
    readFolders(reader, config, base);
    if (const Check ok = reader.finish(); !ok)
        return tl::unexpected(ok.error());
    return config;
}

} // namespace

bool isNumericAddress(const QString &text)
{
    std::array<unsigned char, sizeof(in6_addr)> address{};
    const QByteArray bytes = text.toLatin1();
    return inet_pton(AF_INET, bytes.constData(), address.data()) == 1
        || inet_pton(AF_INET6, bytes.constData(), address.data()) == 1;
}

tl::expected<Config, QString> readConfig(const QString &path)
{
    constexpr qint64 longest = 1 << 20;
    const auto fail = [&](const QString &what) {
        return tl::unexpected(QStringLiteral("%1: %2").arg(path, what));
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(file.read(longest), &error);
    if (error.error != QJsonParseError::NoError)
        return fail(QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        return fail(QStringLiteral("must hold a JSON object"));
    auto config = readObject(document.object(), QFileInfo(path).absoluteDir());
    if (!config)
        return fail(config.error());
    return config;
}

} // namespace moravel::server
