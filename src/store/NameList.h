// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QSet>

#include <functional>
#include <optional>

namespace moravel {

/// A set of file names, kept in a small UTF-8 file, one a line. It is read once; each change is written at
/// once. Main thread only.
class NameList
{
public:
    /// @param path of the file; empty while it cannot be kept.
    NameList(Files &files, std::function<QString()> path);

    const QSet<QString> &names() const;

    bool contains(const QString &name) const { return names().contains(name); }

    void insert(const QStringList &more);
    void remove(const QStringList &some);

private:
    void write() const;

    Files &m_files;
    std::function<QString()> m_path;
    mutable std::optional<QSet<QString>> m_names;
};

} // namespace moravel
