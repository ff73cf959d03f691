// SPDX-License-Identifier: MIT
#include "support/TempHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace moravel::testing {

TempHome::TempHome()
{
    if (!m_dir.isValid())
        qFatal("cannot make a private folder: %ls", qUtf16Printable(m_dir.errorString()));
}

QString TempHome::path(const QString &name) const
{
    return m_dir.filePath(name);
}

QString TempHome::write(const QString &name, const QByteArray &bytes) const
{
    const QString full = path(name);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %ls", qUtf16Printable(full));
    return full;
}

QByteArray TempHome::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace moravel::testing
