// SPDX-License-Identifier: MIT
#include "store/NameList.h"

#include "store/Logging.h"

#include <algorithm>

namespace moravel {

NameList::NameList(Files &files, std::function<QString()> path)
    : m_files(files), m_path(std::move(path))
{ }

const QSet<QString> &NameList::names() const
{
    if (m_names)
        return *m_names;
    m_names.emplace();
    const QString path = m_path();
    if (path.isEmpty() || !m_files.exists(path))
        return *m_names;
    const auto file = m_files.open(path);
    if (!file) {
        qCInfo(lcStore) << "cannot read" << path << file.error().description;
        return *m_names;
    }
    const std::string_view bytes = (*file)->bytes();
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    *m_names = {lines.begin(), lines.end()};
    return *m_names;
}

void NameList::insert(const QStringList &more)
{
    const auto before = names().size();
    for (const QString &name : more) {
        if (!name.isEmpty() && !name.contains(u'\n'))
            m_names->insert(name);
    }
    if (m_names->size() != before)
        write();
}

void NameList::remove(const QStringList &some)
{
    const auto before = names().size();
    for (const QString &name : some)
        m_names->remove(name);
    if (m_names->size() != before)
        write();
}

void NameList::write() const
{
    QStringList sorted(m_names->begin(), m_names->end());
    std::sort(sorted.begin(), sorted.end());
    const QByteArray text = sorted.join(u'\n').toUtf8() + '\n';
    const auto written = m_files.writeAtomically(
        m_path(), {std::string_view(text.constData(), std::size_t(text.size()))});
    if (!written)
        qCInfo(lcStore) << "cannot keep" << written.error().path << written.error().description;
}

} // namespace moravel
