// SPDX-License-Identifier: MIT
#include "store/RecordBatch.h"

#include "store/RecordField.h"

namespace moravel {

namespace {

QString keyOf(const QString &line)
{
    return line.section(u'\t', DateField, SourceField);
}

} // namespace

RecordBatch::RecordBatch(const QString &text) : m_lines(text.split(u'\n'))
{
    m_keys.reserve(m_lines.size());
    for (qsizetype line = 0; line < m_lines.size(); ++line)
        note(line);
}

void RecordBatch::note(qsizetype line)
{
    const QString &record = m_lines[line];
    const QString key = keyOf(record);
    if (!m_keys.contains(key))
        m_keys.insert(key, line);
    qsizetype begin = 0;
    for (qsizetype tab = record.indexOf(u'\t'); tab >= 0; tab = record.indexOf(u'\t', begin)) {
        const qsizetype slash = tab > begin ? record.lastIndexOf(u'/', tab - 1) : -1;
        if (slash < std::exchange(begin, tab + 1))
            continue;
        QList<qsizetype> &lines = m_mentions[record.mid(slash + 1, tab - slash - 1)];
        if (lines.isEmpty() || lines.last() != line)
            lines.append(line);
    }
}

qsizetype RecordBatch::lineMentioning(const QString &name) const
{
    for (const qsizetype line : m_mentions.value(name)) {
        if (m_lines[line].contains(u'/' + name + u'\t')) // it may have been changed since
            return line;
    }
    return -1;
}

QString RecordBatch::replaceField(const QString &fileName, int field, const QString &value)
{
    qsizetype line = fileName.isEmpty() ? -1 : lineMentioning(fileName);
    const qsizetype dot = fileName.lastIndexOf(u'.');
    if (line < 0 && dot > 0)
        line = lineMentioning(fileName.first(dot));
    QStringList fields = line < 0 ? QStringList() : m_lines[line].split(u'\t');
    if (fields.size() <= field)
        return {};
    QString old = std::exchange(fields[field], value);
    m_lines[m_keys.value(keyOf(m_lines[line]), line)] = fields.join(u'\t');
    m_changed = true;
    return old;
}

} // namespace moravel
