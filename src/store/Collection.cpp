// SPDX-License-Identifier: MIT
#include "store/Collection.h"

#include "store/PictureLinks.h"
#include "store/RecordField.h"

#include <QStringList>

#include <algorithm>
#include <tuple>

namespace moravel {

namespace {

enum LegacyField { LegacyDate, LegacySource, LegacyFile, LegacyFieldCount };

// What the records say of a file.
struct Known
{
    QString source; ///< Empty while no record has named it.
    QString date;
    bool canBeFetched = false;
    bool isItsOwnThumb = false; ///< Without it the cell would be empty.
};

class Sorter
{
public:
    explicit Sorter(const CollectionFacts &facts) : m_facts(facts)
    {
        for (const FileEntry &file : facts.pictures)
            m_known.insert(file.name, {});
    }

    void readRecords();
    void readLegacy();
    Collection collection() const;

private:
    void readRecord(const QStringList &fields);
    Known *fileOf(const QString &name, const QString &source, const QString &date);

    const CollectionFacts &m_facts;
    QHash<QString, Known> m_known;
};

Known *Sorter::fileOf(const QString &name, const QString &source, const QString &date)
{
    const auto found = m_known.find(name);
    if (found == m_known.end())
        return nullptr;
    if (found->source.isEmpty())
        found->source = m_facts.sourceNames.value(source, source);
    found->date = std::max(found->date, date);
    return &*found;
}

void Sorter::readRecord(const QStringList &fields)
{
    const QString link = removeDoubleDomain(fields[PicField]);
    Known *file = fileOf(pictureFileName(link), fields[SourceField], fields[DateField]);
    const QString thumb = fields[ThumbField];
    // Of a deleted picture a file is here only because the user, or another record, has it so.
    if (!file || thumb == u"DELETED")
        return;
    file->canBeFetched = file->canBeFetched || link.startsWith(u"http");
    const QString thumbLink = thumb.isEmpty() ? link : removeDoubleDomain(thumb);
    file->isItsOwnThumb = file->isItsOwnThumb || fileNameOfLink(thumbLink).isEmpty();
}

void Sorter::readRecords()
{
    std::string_view rest = m_facts.records;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const QStringList fields =
            QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).split(u'\t');
        if (fields.size() > PicField)
            readRecord(fields);
    }
}

void Sorter::readLegacy()
{
    for (const QString &line : m_facts.legacy.split(u'\r')) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() >= LegacyFieldCount)
            fileOf(fields[LegacyFile], fields[LegacySource], fields[LegacyDate]);
    }
}

void add(DiskShare &share, const FileEntry &file)
{
    ++share.files;
    share.bytes += file.size;
}

Collection Sorter::collection() const
{
    Collection all;
    QHash<QString, DiskShare> sources;
    for (const FileEntry &file : m_facts.pictures) {
        const Known known = m_known.value(file.name);
        if (known.source.isEmpty()) {
            add(all.others, file);
            continue;
        }
        add(all.pictures, file);
        add(sources[known.source], file);
        if (known.canBeFetched && !known.isItsOwnThumb && !m_facts.staying.contains(file.name))
            all.spare.push_back({file.name, file.size, file.modified, known.date});
    }
    for (auto share = sources.begin(); share != sources.end(); ++share) {
        share->source = share.key();
        all.sources.push_back(*share);
    }
    for (const FileEntry &file : m_facts.thumbs)
        add(all.thumbs, file);
    std::sort(all.sources.begin(), all.sources.end(), [](const auto &a, const auto &b) {
        return std::tie(b.bytes, a.source) < std::tie(a.bytes, b.source);
    });
    std::sort(all.spare.begin(), all.spare.end(), [](const auto &a, const auto &b) {
        return std::tie(a.fetched, a.date, a.name) < std::tie(b.fetched, b.date, b.name);
    });
    return all;
}

} // namespace

Collection collectionOf(const CollectionFacts &facts)
{
    Sorter sorter(facts);
    sorter.readRecords();
    sorter.readLegacy();
    return sorter.collection();
}

std::vector<SparePicture> picturesToLetGo(const Collection &collection, qint64 limit)
{
    std::vector<SparePicture> going;
    qint64 bytes = collection.pictures.bytes;
    for (const SparePicture &picture : collection.spare) {
        if (limit <= 0 || bytes <= limit)
            break;
        bytes -= picture.bytes;
        going.push_back(picture);
    }
    return going;
}

} // namespace moravel
