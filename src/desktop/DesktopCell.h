// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"
#include "desktop/DockTile.h"

#include <memory>

namespace moravel {

/// Fills the desktop cell. A file that did not change since the last time is not read again.
class DesktopCell
{
public:
    DesktopCell(const DesktopContext &context, DockTile &dockTile);

    /// Shows a picture file with what is stored of it; its image comes later.
    void showDesktopThumb(const QString &path);
    /// Shows that the desktop takes its pictures from a folder.
    void showFolder();

private:
    struct Seen
    {
        QString path;
        QByteArray file; ///< Stamp of the picture.
        QByteArray records; ///< Stamp of the record file.
        bool operator==(const Seen &) const = default;
    };

    Seen look(const QString &path);
    void showRecord(const QStringList &fields, const QString &path);
    void showForeign(const QString &path) const;
    void load(const QString &path);
    void showImage(const QString &path, const QImage &image);

    const DesktopContext &m_context;
    DockTile &m_dockTile;
    Seen m_seen;
    QString m_dataFile;
    std::shared_ptr<int> m_load; ///< The load under way; an older one finds its own gone.
};

} // namespace moravel
