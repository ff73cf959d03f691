// SPDX-License-Identifier: MIT
#include "server/core/Config.h"

#include "server/core/SourceList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <arpa/inet.h>
#include <array>

namespace moravel::server {

namespace {

/// Text from // to the end of its line becomes blanks, so that errors still tell the right byte.
QByteArray withoutComments(QByteArray json)
{
    bool inText = false;
    for (qsizetype at = 0; at < json.size(); ++at) {
        if (json[at] == '"')
            inText = !inText;
        else if (inText && json[at] == '\\')
            ++at;
        else if (!inText && json.mid(at, 2) == "//")
            for (; at < json.size() && json[at] != '\n'; ++at)
                json[at] = ' ';
    }
    return json;
}

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

    bool truth(const char *key, bool otherwise)
    {
        const QJsonValue value = take(key);
        if (!value.isUndefined() && !value.isBool())
            fail(key, "must be true or false");
        return value.toBool(otherwise);
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

NetworkSetup takeNetwork(Reader &reader)
{
    NetworkSetup setup;
    QString address;
    reader.text("address", address);
    setup.address = QUrl(address, QUrl::StrictMode);
    const bool web = setup.address.scheme() == u"http" || setup.address.scheme() == u"https";
    if (!address.isEmpty() && (!web || setup.address.host().isEmpty()))
        reader.fail("address", "must be an http or https address");
    reader.text("credit", setup.credit);
    setup.proxy = reader.truth("proxy", false);
    setup.isPrivate = reader.truth("private", false);
    return setup;
}

void readNetwork(Reader &reader, Config &config)
{
    const QJsonValue value = reader.take("networkSources");
    if (!value.isUndefined() && !value.isObject())
        return reader.fail("networkSources", "must be an object of names and true or false");
    const QJsonObject sources = value.toObject();
    for (auto it = sources.begin(); it != sources.end(); ++it) {
        NetworkSetup setup;
        if (it.value().isObject()) {
            Reader one(it.value().toObject(), QStringLiteral(" in \"%1\"").arg(it.key()));
            setup = takeNetwork(one);
            setup.isOn = one.truth("on", true);
            one.text("key", setup.key);
            one.text("market", setup.market);
            if (const Check ok = one.finish(); !ok)
                return reader.fail(ok.error());
        } else if (it.value().isBool()) {
            setup.isOn = it.value().toBool();
        } else {
            return reader.fail("networkSources", "must hold only true, false and objects");
        }
        setup.shortName = it.key();
        config.networkSources.append(setup);
    }
}

void readFeeds(Reader &reader, Config &config)
{
    const QJsonValue value = reader.take("feedSources");
    if (!value.isUndefined() && !value.isArray())
        return reader.fail("feedSources", "must be a list");
    const QJsonArray feeds = value.toArray();
    for (const auto &item : feeds) {
        Reader one(item.toObject(), QStringLiteral(" in \"feedSources\""));
        NetworkSetup setup = takeNetwork(one);
        one.text("shortName", setup.shortName, true);
        one.text("longName", setup.longName, true);
        if (!isShortName(setup.shortName))
            one.fail("shortName", "must be 1 to 32 letters from A to Z and a to z");
        if (setup.address.isEmpty())
            one.fail("address", "must be an http or https address");
        if (const Check ok = one.finish(); !ok)
            return reader.fail(ok.error());
        config.feedSources.append(setup);
    }
}

void readSizes(Reader &reader, Config &config)
{
    static const QRegularExpression form(QStringLiteral("\\A(\\d{2,4})x(\\d{2,4})\\z"));
    const QJsonValue value = reader.take("proxySizes");
    if (!value.isUndefined() && !value.isObject())
        return reader.fail("proxySizes", "must be an object of sizes");
    Reader sizes(value.toObject(), QStringLiteral(" in \"proxySizes\""));
    for (const char *name : {"thumb", "normal", "full"}) {
        QString text;
        sizes.text(name, text);
        const auto match = form.match(text);
        if (match.hasMatch())
            config.proxySizes.insert(QString::fromLatin1(name),
                                     {match.captured(1).toInt(), match.captured(2).toInt()});
        else if (!text.isEmpty())
            sizes.fail(name, "must be a size such as 1920x1080");
    }
    if (const Check ok = sizes.finish(); !ok)
        reader.fail(ok.error());
}

void readService(Reader &reader, Config &config, const QDir &base)
{
    reader.text("store", config.store);
    if (!config.store.isEmpty() && !isDatabase(config.store))
        config.store = QDir::cleanPath(base.absoluteFilePath(config.store));
    reader.text("contact", config.contact);
    reader.text("publicUrl", config.publicUrl);
    const QUrl url(config.publicUrl, QUrl::StrictMode);
    if (!config.publicUrl.isEmpty()
        && ((url.scheme() != u"http" && url.scheme() != u"https") || url.host().isEmpty()
            || !url.path().endsWith(QLatin1StringView("/potd"))))
        reader.fail("publicUrl", "must be an http or https address that ends with /potd");
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
    readNetwork(reader, config);
    readFeeds(reader, config);
    readSizes(reader, config);
    readService(reader, config, base);
    if (const Check ok = reader.finish(); !ok)
        return tl::unexpected(ok.error());
    return config;
}

} // namespace

bool isDatabase(const QString &store)
{
    return store.startsWith(QLatin1StringView("postgresql://"))
        || store.startsWith(QLatin1StringView("postgres://"));
}

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
    const auto document = QJsonDocument::fromJson(withoutComments(file.read(longest)), &error);
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
