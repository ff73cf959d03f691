// SPDX-License-Identifier: MIT
#include "browser/BrowserRows.h"

#include "store/PictureLinks.h"
#include "store/RecordField.h"
#include "text/Captions.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <numeric>

namespace moravel {

namespace {

constexpr qsizetype ShortestSearch = 3;

enum LegacyField { LegacyDate, LegacySource, LegacyFile, LegacyCaption, LegacyFieldCount };

QString textOf(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

class RowMaker
{
public:
    explicit RowMaker(const BrowserTexts &texts) : m_texts(texts) { }

    void readLegacy();
    void readRecords();

    std::vector<BrowserRow> takeRows() { return std::move(m_rows); }

private:
    using Fields = std::array<std::string_view, CaptionField + 1>;

    void readRecord(const Fields &fields);
    bool isPicture(const QString &name);
    void add(const QString &date, const QString &name, const QString &caption,
             const QString &source);
    QString shared(std::string_view bytes);

    const BrowserTexts &m_texts;
    std::vector<BrowserRow> m_rows;
    QString m_lastExtension; ///< What was asked last, and its answer.
    bool m_lastIsImage = false;
    QHash<QByteArray, QString> m_shared; ///< Dates and sources come again and again.
};

void RowMaker::add(const QString &date, const QString &name, const QString &caption,
                   const QString &source)
{
    m_rows.push_back({date, m_texts.folder + name, normalisedCaption(caption), source});
}

bool RowMaker::isPicture(const QString &name)
{
    const QStringView extension = QStringView(name).sliced(name.lastIndexOf(u'.') + 1);
    if (extension.size() == name.size())
        return false;
    if (extension != m_lastExtension) { // it hardly ever changes
        m_lastExtension = extension.toString();
        m_lastIsImage = m_texts.isImageExtension(m_lastExtension);
    }
    return m_lastIsImage;
}

QString RowMaker::shared(std::string_view bytes)
{
    const auto size = static_cast<qsizetype>(bytes.size());
    const auto known = m_shared.constFind(QByteArray::fromRawData(bytes.data(), size));
    if (known != m_shared.constEnd())
        return *known;
    return *m_shared.insert(QByteArray(bytes.data(), size), textOf(bytes));
}

void RowMaker::readLegacy()
{
    for (const QString &line : m_texts.legacy.split(u'\r')) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() >= LegacyFieldCount && isPicture(fields[LegacyFile]))
            add(fields[LegacyDate], fields[LegacyFile], fields[LegacyCaption],
                fields[LegacySource]);
    }
}

void RowMaker::readRecords()
{
    std::string_view rest = m_texts.records;
    Fields fields;
    while (!rest.empty()) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        std::size_t count = 0;
        for (bool more = true; more && count < fields.size(); ++count) {
            fields[count] = line.substr(0, line.find('\t'));
            more = fields[count].size() < line.size();
            line.remove_prefix(std::min(fields[count].size() + 1, line.size()));
        }
        if (count == fields.size())
            readRecord(fields);
    }
}

void RowMaker::readRecord(const Fields &fields)
{
    const std::string_view link = fields[PicField];
    const QString name = pictureFileName(textOf(link.substr(link.rfind('/') + 1)));
    if (!name.isEmpty() && isPicture(name))
        add(shared(fields[DateField]), name, textOf(fields[CaptionField]),
            shared(fields[SourceField]));
}

/// Sorts positions rather than rows, which are dear to move.
std::vector<BrowserRow> newestFirst(std::vector<BrowserRow> rows)
{
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&rows](std::size_t a, std::size_t b) { return rows[a].date > rows[b].date; });
    std::vector<BrowserRow> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t at : order)
        sorted.push_back(std::move(rows[at]));
    return sorted;
}

} // namespace

size_t qHash(const BrowserRow &row, size_t seed)
{
    return qHashMulti(seed, row.file, row.source, row.date);
}

std::vector<BrowserRow> recordedRows(const BrowserTexts &texts)
{
    RowMaker maker(texts);
    maker.readLegacy();
    maker.readRecords();
    return maker.takeRows();
}

BrowserData browserData(std::vector<BrowserRow> recorded, const QSet<QString> &files)
{
    std::erase_if(recorded, [&files](const BrowserRow &row) { return !files.contains(row.file); });
    return {newestFirst(std::move(recorded))};
}

CaptionIndex captionIndex(const BrowserData &data)
{
    CaptionIndex index;
    index.reserve(data.rows.size());
    for (const BrowserRow &row : data.rows)
        index.append(row.caption);
    return index;
}

bool filtersCaptions(const BrowserFilter &filter)
{
    return filter.text.size() >= ShortestSearch;
}

std::vector<int> filteredRows(const BrowserData &data, const CaptionIndex &captions,
                              const BrowserFilter &filter)
{
    std::vector<int> rows;
    if (filtersCaptions(filter)) {
        rows = captions.captionsContaining(filter.text);
    } else {
        rows.resize(data.rows.size());
        std::iota(rows.begin(), rows.end(), 0);
    }
    if (filter.longSource.isEmpty())
        return rows;
    std::erase_if(rows, [&](int row) {
        const QString &source = data.rows[static_cast<std::size_t>(row)].source;
        return source != filter.longSource
            && (filter.shortSource.isEmpty() || source != filter.shortSource);
    });
    return rows;
}

bool operator==(const ShownRows &a, const ShownRows &b)
{
    if (a.data == b.data || a.rows.size() != b.rows.size())
        return a.rows == b.rows;
    for (std::size_t i = 0; i < a.rows.size(); ++i) {
        if (!(a.at(i) == b.at(i)))
            return false;
    }
    return true;
}

std::vector<int> placesNow(const ShownRows &before, const std::vector<int> &indexes,
                           const ShownRows &now)
{
    std::vector<int> places(indexes.size(), -1);
    QHash<BrowserRow, int> wanted; // rows of older data, by what they say
    for (std::size_t i = 0; i < indexes.size(); ++i) {
        const auto index = static_cast<std::size_t>(indexes[i]);
        if (index >= before.rows.size()) // also for -1
            continue;
        if (before.data != now.data) {
            wanted.insert(before.at(index), static_cast<int>(i));
            continue;
        }
        const int row = before.rows[index];
        const auto found = std::lower_bound(now.rows.begin(), now.rows.end(), row);
        if (found != now.rows.end() && *found == row)
            places[i] = static_cast<int>(found - now.rows.begin());
    }
    for (std::size_t i = 0; !wanted.isEmpty() && i < now.rows.size(); ++i) {
        if (const int at = wanted.value(now.at(i), -1); at >= 0)
            places[static_cast<std::size_t>(at)] = static_cast<int>(i);
    }
    return places;
}

} // namespace moravel
