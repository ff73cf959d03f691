// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

namespace moravel::testing {

/// A private folder that goes with the object; for tests that touch the disk.
class TempHome
{
public:
    TempHome()
    {
        if (!m_dir.isValid())
            qFatal("cannot make a private folder: %ls", qUtf16Printable(m_dir.errorString()));
    }

    /// Absolute path of @p name below the private folder.
    QString path(const QString &name = {}) const { return m_dir.filePath(name); }

    /// Writes a file below the private folder, making its parents.
    QString write(const QString &name, const QByteArray &bytes) const
    {
        const QString full = path(name);
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %ls", qUtf16Printable(full));
        return full;
    }

    /// Reads a file by absolute path; empty when it is missing.
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_dir;
};

} // namespace moravel::testing
