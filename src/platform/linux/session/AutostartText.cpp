// SPDX-License-Identifier: MIT
#include "platform/linux/session/AutostartText.h"

#include "platform/linux/session/ProgramName.h"

#include <algorithm>
#include <optional>

namespace moravel {

namespace {

const QString Group = QStringLiteral("[Desktop Entry]");
const QString Hidden = QStringLiteral("Hidden");
const QString Enabled = QStringLiteral("X-GNOME-Autostart-enabled");
const QString Exec = QStringLiteral("Exec");

// The lines of an entry, changed in place.
class Entry
{
public:
    explicit Entry(const QString &text) : m_lines(text.split(u'\n'))
    {
        const auto isGroup = [](const QString &line) { return line.trimmed() == Group; };
        m_begin = std::find_if(m_lines.begin(), m_lines.end(), isGroup) - m_lines.begin() + 1;
        m_end = m_begin;
        while (m_end < m_lines.size() && !m_lines[m_end].startsWith(u'['))
            ++m_end;
    }

    std::optional<QString> value(const QString &key) const
    {
        const qsizetype at = find(key);
        if (at < 0)
            return std::nullopt;
        return m_lines[at].section(u'=', 1).trimmed();
    }

    void set(const QString &key, const QString &newValue)
    {
        const QString line = key + u'=' + newValue;
        if (const qsizetype at = find(key); at >= 0)
            m_lines[at] = line;
        else
            m_lines.insert(m_begin, line);
    }

    void remove(const QString &key)
    {
        if (const qsizetype at = find(key); at >= 0)
            m_lines.removeAt(at);
    }

    QString text() const { return m_lines.join(u'\n'); }

private:
    qsizetype find(const QString &key) const
    {
        for (qsizetype i = m_begin; i < m_end && i < m_lines.size(); ++i) {
            if (m_lines[i].section(u'=', 0, 0).trimmed() == key)
                return i;
        }
        return -1;
    }

    QStringList m_lines;
    qsizetype m_begin = 0; ///< First line of the group.
    qsizetype m_end = 0;
};

QString newEntry(const QStringList &command)
{
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Moravel\n"
                          "Exec=%1\n"
                          "Icon=%2\n"
                          "Terminal=false\n"
                          "StartupNotify=false\n")
        .arg(execLine(command), ProgramIcon);
}

} // namespace

bool startsWithSession(const QString &entry)
{
    const Entry read(entry);
    return !read.value(Exec).value_or(QString()).isEmpty()
        && read.value(Hidden) != QStringLiteral("true")
        && read.value(Enabled) != QStringLiteral("false");
}

QString changedAutostart(const QString &entry, bool on, const QStringList &command)
{
    Entry changed(entry);
    if (changed.value(Exec).value_or(QString()).isEmpty())
        changed = Entry(newEntry(command));
    if (on)
        changed.remove(Hidden);
    else
        changed.set(Hidden, QStringLiteral("true"));
    changed.set(Enabled, on ? QStringLiteral("true") : QStringLiteral("false"));
    return changed.text();
}

// Two layers: the quoting of arguments, then the escapes of any value in such a file.
QString execLine(const QStringList &command)
{
    QStringList quoted;
    for (const QString &argument : command) {
        QString text;
        for (const QChar c : argument) {
            if (QStringLiteral("\"`$\\").contains(c))
                text += u'\\';
            text += c == u'%' ? QStringLiteral("%%") : QString(c);
        }
        const bool isPlain = std::all_of(argument.begin(), argument.end(), [](QChar c) {
            return c.isLetterOrNumber() || QStringLiteral("/-_.+,:@").contains(c);
        });
        quoted.append(isPlain ? text : u'"' + text + u'"');
    }
    return quoted.join(u' ').replace(u'\\', QStringLiteral("\\\\"));
}

} // namespace moravel
