// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace moravel::testing {

/// A private folder that goes with the object; for tests that touch the disk.
class TempHome
{
public:
    TempHome();

    /// Absolute path of @p name below the private folder.
    QString path(const QString &name = {}) const;

    /// Writes a file below the private folder, making its parents.
    QString write(const QString &name, const QByteArray &bytes) const;

    /// Reads a file by absolute path; empty when it is missing.
    static QByteArray read(const QString &path);

private:
    QTemporaryDir m_dir;
};

} // namespace moravel::testing
