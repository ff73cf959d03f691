// SPDX-License-Identifier: MIT
#include "store/RecordBatch.h"

#include "store/RecordField.h"

#include <algorithm>
#include <utility>

namespace moravel {

namespace {

/// The same bytes, not copied.
QByteArray lent(std::string_view bytes)
{
    return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray keyOf(std::string_view line)
{
    static_assert(DateField == 0 && SourceField == 1);
    const std::size_t date = line.find('\t');
    return lent(line.substr(0, date == std::string_view::npos ? date : line.find('\t', date + 1)));
}

} // namespace

RecordBatch::RecordBatch(std::string_view text, const QStringList &fileNames)
{
    for (const QString &name : fileNames) {
        m_mentions.insert(name.toUtf8(), {});
        m_mentions.insert(name.first(std::max(name.lastIndexOf(u'.'), qsizetype(0))).toUtf8(), {});
    }
    m_mentions.remove({});
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        m_lines.push_back(text.substr(begin, end - begin));
        note(m_lines.size() - 1);
        begin = end + 1;
    }
}

void RecordBatch::note(std::size_t line)
{
    std::string_view rest = m_lines[line];
    const QByteArray key = keyOf(rest);
    if (!m_keys.contains(key))
        m_keys.insert(key, line);
    for (std::size_t tab = rest.find('\t'); tab != std::string_view::npos; tab = rest.find('\t')) {
        const std::string_view field = rest.substr(0, tab);
        rest.remove_prefix(tab + 1);
        const std::size_t slash = field.rfind('/');
        if (slash == std::string_view::npos)
            continue;
        const auto wanted = m_mentions.find(lent(field.substr(slash + 1)));
        if (wanted != m_mentions.end() && (wanted->isEmpty() || wanted->last() != line))
            wanted->append(line);
    }
}

qsizetype RecordBatch::lineMentioning(const QByteArray &name) const
{
    const QByteArray mention = '/' + name + '\t';
    for (const std::size_t line : m_mentions.value(name)) {
        if (m_lines[line].find(viewOf(mention))
            != std::string_view::npos) // it may have been changed
            return static_cast<qsizetype>(line);
    }
    return -1;
}

QString RecordBatch::replaceField(const QString &fileName, int field, const QString &value)
{
    qsizetype line = lineMentioning(fileName.toUtf8());
    const qsizetype dot = fileName.lastIndexOf(u'.');
    if (line < 0 && dot > 0)
        line = lineMentioning(fileName.first(dot).toUtf8());
    if (line < 0)
        return {};
    const std::string_view record = m_lines[static_cast<std::size_t>(line)];
    QByteArrayList fields = lent(record).split('\t');
    if (fields.size() <= field)
        return {};
    const QByteArray old = std::exchange(fields[field], value.toUtf8());
    m_changed.push_back(fields.join('\t'));
    m_lines[m_keys.value(keyOf(record), static_cast<std::size_t>(line))] = viewOf(m_changed.back());
    return QString::fromUtf8(old);
}

QByteArray RecordBatch::text() const
{
    std::size_t size = m_lines.size();
    for (const std::string_view line : m_lines)
        size += line.size();
    QByteArray text;
    text.reserve(static_cast<qsizetype>(size));
    for (const std::string_view line : m_lines)
        text.append(line.data(), static_cast<qsizetype>(line.size())).append('\n');
    text.chop(1);
    return text;
}

} // namespace moravel
