// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace moravel {

/// The text of the picture records in memory, for changing many of them with one reading and one writing.
/// Finds and replaces what RecordFile finds and replaces.
class RecordBatch
{
public:
    explicit RecordBatch(const QString &text);

    /// Sets a field of the record that mentions a file, in the place of the first record of its key. Returns
    /// the old value; "" when there is no such record or field.
    QString replaceField(const QString &fileName, int field, const QString &value);

    bool hasChanged() const { return m_changed; }

    QString text() const { return m_lines.join(u'\n'); }

private:
    void note(qsizetype line);
    qsizetype lineMentioning(const QString &name) const;

    QStringList m_lines;
    QHash<QString, QList<qsizetype>> m_mentions; ///< Lines by what follows a "/" up to a tab.
    QHash<QString, qsizetype> m_keys; ///< First line by date and source.
    bool m_changed = false;
};

} // namespace moravel
