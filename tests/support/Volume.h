// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>

#include <cerrno>
#include <cstring>
#include <sys/mount.h>

namespace moravel::testing {

/// A small file system of its own in memory, mounted at a folder; needs the right to mount.
class Volume
{
public:
    explicit Volume(const QString &folder) : m_folder(folder.toUtf8())
    {
        QDir().mkpath(folder);
        m_isMounted = mount(MS_NOSUID);
    }

    ~Volume()
    {
        if (m_isMounted)
            ::umount2(m_folder.constData(), MNT_DETACH);
    }

    Q_DISABLE_COPY_MOVE(Volume)

    bool isMounted() const { return m_isMounted; }

    const char *error() const { return std::strerror(m_error); }

    bool setReadOnly(bool readOnly)
    {
        return mount(MS_NOSUID | MS_REMOUNT | (readOnly ? MS_RDONLY : 0));
    }

private:
    bool mount(unsigned long flags)
    {
        const bool done =
            ::mount("moravel-test", m_folder.constData(), "tmpfs", flags, "size=256k,mode=0755")
            == 0;
        m_error = errno;
        return done;
    }

    QByteArray m_folder;
    int m_error = 0;
    bool m_isMounted = false;
};

} // namespace moravel::testing
