// SPDX-License-Identifier: MIT
#include "store/RecordFile.h"

#include "base/Dates.h"
#include "platform/Alerts.h"
#include "platform/Texts.h"
#include "store/Folders.h"
#include "store/Lines.h"
#include "store/Logging.h"
#include "store/RecordField.h"
#include "store/Utf8.h"

namespace moravel {

namespace {

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), std::size_t(bytes.size())};
}

QString textOf(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
}

/// How the line of a key begins. The closing tab keeps "Wiki" apart from "Wik".
QByteArray keyPrefix(const QString &sqlDate, const QString &source)
{
    return sqlDate.toUtf8() + '\t' + source.toUtf8() + '\t';
}

/// What a line that mentions a file contains.
QString mention(const QString &fileName)
{
    return u'/' + fileName + u'\t';
}

std::optional<Line> lineMentioning(std::string_view text, const QString &fileName,
                                   std::size_t from = 0)
{
    if (fileName.isEmpty())
        return std::nullopt;
    return firstLineContaining(text, viewOf(mention(fileName).toUtf8()), '\n', from);
}

FileResult<std::unique_ptr<FileBytes>> openValid(Files &files, const QString &path)
{
    auto file = files.open(path);
    if (file && !isValidUtf8((*file)->bytes()))
        return tl::make_unexpected(FileError{path, QStringLiteral("is not UTF-8")});
    return file;
}

void logUnread(const FileError &error)
{
    qCInfo(lcStore) << "cannot read" << error.path << error.description;
}

} // namespace

/// The bytes of the file, checked to be UTF-8.
class RecordFile::Text
{
public:
    Text() = default;

    explicit Text(std::unique_ptr<FileBytes> file) : m_file(std::move(file)) { }

    std::string_view bytes() const { return m_file ? m_file->bytes() : std::string_view(); }

private:
    std::unique_ptr<FileBytes> m_file;
};

RecordFile::RecordFile(Folders &folders, Files &files, Alerts &alerts, const Dates &dates,
                       LegacyLookUp legacy)
    : m_folders(folders)
    , m_files(files)
    , m_alerts(alerts)
    , m_dates(dates)
    , m_legacy(std::move(legacy))
{ }

FileResult<RecordFile::Text> RecordFile::load(const QString &path) const
{
    if (path.isEmpty() || !m_files.exists(path))
        return Text();
    auto file = m_files.open(path);
    if (!file)
        return tl::make_unexpected(file.error());
    const QByteArray stamp = (*file)->stamp();
    if (stamp.isEmpty() || stamp != m_validStamp) {
        if (!isValidUtf8((*file)->bytes()))
            return tl::make_unexpected(FileError{path, QString()});
        m_validStamp = stamp;
    }
    return Text(std::move(*file));
}

RecordFile::Text RecordFile::loadOrNothing() const
{
    auto text = load(m_folders.moravelDataFile());
    if (text)
        return std::move(*text);
    logUnread(text.error());
    return {};
}

std::optional<QString> RecordFile::readTextData() const
{
    const auto text = load(m_folders.moravelDataFile());
    return text ? std::optional(textOf(text->bytes())) : std::nullopt;
}

std::function<std::unique_ptr<FileBytes>()> RecordFile::openingTextData() const
{
    return [&files = m_files, path = m_folders.moravelDataFile()]() -> std::unique_ptr<FileBytes> {
        if (path.isEmpty() || !files.exists(path))
            return nullptr;
        auto file = openValid(files, path);
        if (file)
            return std::move(*file);
        logUnread(file.error());
        return nullptr;
    };
}

bool RecordFile::writeTextData(const QString &text)
{
    const std::lock_guard turn(m_changing);
    return write(m_folders.moravelDataFile(), {viewOf(text.toUtf8())});
}

std::function<FileResult<void>()> RecordFile::changing(Change change)
{
    return [this, path = m_folders.moravelDataFile(),
            change = std::move(change)]() -> FileResult<void> {
        const std::lock_guard turn(m_changing);
        const auto file = openValid(m_files, path);
        if (!file) {
            logUnread(file.error());
            return {};
        }
        const auto changed = change((*file)->bytes());
        return changed ? m_files.writeAtomically(path, {viewOf(*changed)}) : FileResult<void>();
    };
}

bool RecordFile::write(const QString &path, std::initializer_list<std::string_view> pieces)
{
    if (const auto written = m_files.writeAtomically(path, pieces); !written)
        return alertNotStored(written.error());
    // What was read was found to be UTF-8 and what was added was encoded here: no need to look again.
    std::size_t size = 0;
    for (const std::string_view piece : pieces)
        size += piece.size();
    if (const auto file = m_files.open(path); file && (*file)->bytes().size() == size)
        m_validStamp = (*file)->stamp();
    return true;
}

bool RecordFile::alertNotStored(const FileError &error)
{
    qCInfo(lcStore) << "cannot store in" << error.path << error.description;
    m_alerts.alert(Texts::tr("Error storing Moravel data."), error.description);
    return false;
}

QString RecordFile::storedDataFor(const QString &source, const QString &onShortDate) const
{
    const QString sqlDate = m_dates.sqlDateFromShortDate(onShortDate);
    if (sqlDate.isEmpty())
        return {};
    const Text text = loadOrNothing();
    const auto line = firstLineStartingWith(text.bytes(), viewOf(keyPrefix(sqlDate, source)));
    return line ? textOf(line->in(text.bytes())) : QString();
}

qsizetype RecordFile::indexOfDataFor(const QString &source, const QString &onSqlDate) const
{
    if (onSqlDate.isEmpty())
        return -1;
    const Text text = loadOrNothing();
    const auto line = firstLineStartingWith(text.bytes(), viewOf(keyPrefix(onSqlDate, source)));
    return line ? line->number : -1;
}

QString RecordFile::storedDataForFile(const QString &fileName, bool checkingOlds) const
{
    if (fileName.isEmpty())
        return {};
    const Text text = loadOrNothing();
    auto line = lineMentioning(text.bytes(), fileName);
    const qsizetype dot = fileName.lastIndexOf(u'.');
    if (!line && dot >= 0)
        line = lineMentioning(text.bytes(), fileName.first(dot));
    if (line)
        return textOf(line->in(text.bytes()));
    return checkingOlds ? m_legacy(fileName) : QString();
}

QString RecordFile::captionForFileName(const QString &fileName,
                                       const QStringList &withFileData) const
{
    if (fileName.isEmpty())
        return {};
    const QString part = mention(fileName);
    for (const QString &line : withFileData) {
        if (line.contains(part))
            return line.section(u'\t', CaptionField, CaptionField);
    }
    return {};
}

bool RecordFile::isAnyoneUsingPicFile(const QString &fileName, const QString &exceptForSource,
                                      const QString &onShortDate) const
{
    const QByteArray ownKey = keyPrefix(m_dates.sqlDateFromShortDate(onShortDate), exceptForSource);
    const Text text = loadOrNothing();
    auto line = lineMentioning(text.bytes(), fileName);
    while (line && line->in(text.bytes()).starts_with(viewOf(ownKey)))
        line = lineMentioning(text.bytes(), fileName, line->end);
    return line.has_value();
}

bool RecordFile::saveStoredData(const QString &record)
{
    const QByteArray line = QString(record).replace(u'\n', u' ').toUtf8();
    const qsizetype sourceEnd = line.indexOf('\t', line.indexOf('\t') + 1);
    if (!line.contains('\t')) {
        qCInfo(lcStore) << "no record:" << line.left(200);
        return false;
    }
    const QByteArray key = sourceEnd < 0 ? line + '\t' : line.first(sourceEnd + 1);
    const QString path = m_folders.moravelDataFile();
    const std::lock_guard turn(m_changing);
    const auto text = load(path);
    if (!text)
        return alertNotStored(text.error());
    const std::string_view old = text->bytes();
    const auto place = firstLineStartingWith(old, viewOf(key));
    if (!place)
        return write(path, {old, viewOf(line), "\n"});
    return write(path, {old.substr(0, place->begin), viewOf(line), old.substr(place->end)});
}

bool RecordFile::removeDataFor(const QString &source, const QString &onSqlDate)
{
    if (onSqlDate.isEmpty())
        return false;
    const QString path = m_folders.moravelDataFile();
    const std::lock_guard turn(m_changing);
    const auto text = load(path);
    if (!text)
        return false;
    const auto line = firstLineStartingWith(text->bytes(), viewOf(keyPrefix(onSqlDate, source)));
    if (!line)
        return false;
    write(path, {withoutLine(text->bytes(), line->in(text->bytes()))});
    return true;
}

} // namespace moravel
