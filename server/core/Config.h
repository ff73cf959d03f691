// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>

#include <tl/expected.hpp>

namespace moravel::server {

/// A folder of the operator's pictures, shown one a day.
struct FolderSetup
{
    QString shortName;
    QString longName;
    QString path; ///< Absolute.
    QString credit;
    QString licence;
};

/// What is said of a source on the network: one that the service knows by its short name, or a
/// feed.
struct NetworkSetup
{
    QString shortName;
    QString longName; ///< Of a feed.
    bool isOn = true;
    QUrl address; ///< Of a feed, or instead of the public one.
    QString key;
    QString market;
    QString credit;
    bool proxy = false; ///< Its pictures go through this service.
    bool isPrivate = false; ///< It may lie in this machine or its network.
};

/// What the operator can set; docs/service.md describes the file.
struct Config
{
    QString bind = QStringLiteral("127.0.0.1");
    int port = 8642; ///< 0 takes any free port.
    qint64 cacheBytes = qint64(1) << 30;
    QString newsFile; ///< Absolute; empty when there is none.
    QHash<QString, bool> computedSources; ///< By short name; those not named are on.
    QList<FolderSetup> folderSources;
    QList<NetworkSetup> networkSources; ///< Those not named are off.
    QList<NetworkSetup> feedSources;
    QString store; ///< "postgresql://…" or an absolute path; empty: a file in the usual place.
    QString contact; ///< For those who are asked; empty: the one set when the program was built.
    QString publicUrl; ///< Begins all links; empty: the request's host.
    QHash<QString, QSize> proxySizes; ///< By "thumb", "normal" and "full".
};

/// Reads a configuration file; relative paths in it count from its folder. The error is one line
/// that names the file and what is wrong in it.
tl::expected<Config, QString> readConfig(const QString &path);

/// Whether a store is a database's address rather than a path.
bool isDatabase(const QString &store);

/// Whether @p text is a numeric IPv4 or IPv6 address.
bool isNumericAddress(const QString &text);

} // namespace moravel::server
