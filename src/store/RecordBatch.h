// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QStringList>

#include <deque>
#include <string_view>
#include <vector>

namespace moravel {

/// The text of the picture records in memory, for changing many of them with one reading and one writing.
/// Finds and replaces what RecordFile finds and replaces. Any thread.
class RecordBatch
{
public:
    /// @param text is lent, UTF-8; @param fileNames are those whose records will be changed.
    RecordBatch(std::string_view text, const QStringList &fileNames);

    /// Sets a field of the record that mentions a file, in the place of the first record of its key. Returns
    /// the old value; "" when there is no such record or field.
    QString replaceField(const QString &fileName, int field, const QString &value);

    bool hasChanged() const { return !m_changed.empty(); }

    QByteArray text() const;

private:
    void note(std::size_t line);
    qsizetype lineMentioning(const QByteArray &name) const;

    std::vector<std::string_view> m_lines;
    std::deque<QByteArray> m_changed; ///< What the lines look at that are no longer the text's.
    QHash<QByteArray, QList<std::size_t>> m_mentions; ///< Lines by the name that stands in them.
    QHash<QByteArray, std::size_t> m_keys; ///< First line by date and source; looks at the text.
};

} // namespace moravel
