// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>

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

/// What the operator can set; docs/service.md describes the file.
struct Config
{
    QString bind = QStringLiteral("127.0.0.1");
    int port = 8642; ///< 0 takes any free port.
    qint64 cacheBytes = qint64(1) << 30;
    QString newsFile; ///< Absolute; empty when there is none.
    QHash<QString, bool> computedSources; ///< By short name; those not named are on.
    QList<FolderSetup> folderSources;
};

/// Reads a configuration file; relative paths in it count from its folder. The error is one line
/// that names the file and what is wrong in it.
tl::expected<Config, QString> readConfig(const QString &path);

/// Whether @p text is a numeric IPv4 or IPv6 address.
bool isNumericAddress(const QString &text);

} // namespace moravel::server
