// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"
#include "platform/Files.h"

#include <QMap>

namespace moravel {

/// What this program last put onto one screen, for desktops that cannot be asked.
struct DesktopRecordEntry
{
    QString path;
    DesktopScaling scaling = DesktopScaling::Fill;
    qint64 owner = 0; ///< What shows it: a process id, where it has one of its own.
    qint64 ownerStart = 0; ///< Start of that process in clock ticks since the machine's start.
    bool operator==(const DesktopRecordEntry &) const = default;
};

/// The record as a whole.
struct DesktopRecord
{
    qint64 owner = 0; ///< What shows all of it (the id of a pixmap).
    QMap<QString, DesktopRecordEntry> screens;
    bool operator==(const DesktopRecord &) const = default;
};

/// The bytes of a record, and back. What is damaged or beyond 64 screens is left out.
QByteArray recordBytes(const DesktopRecord &record);
DesktopRecord recordFromBytes(const QByteArray &bytes);

/// Reads and writes a record in one small file; failures are logged, the program goes on without it.
class DesktopRecordFile
{
public:
    DesktopRecordFile(Files &files, QString path) : m_files(files), m_path(std::move(path)) { }

    DesktopRecord read() const;
    void write(const DesktopRecord &record) const;

private:
    Files &m_files;
    QString m_path;
};

} // namespace moravel
