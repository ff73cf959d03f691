// SPDX-License-Identifier: MIT
#include "app/DiskSide.h"

#include "mainwindow/DiskSpaceSheet.h"

#include <QMenu>
#include <QPointer>

#include <algorithm>

namespace moravel {

namespace {

// After the start and after the last picture that came: a pass brings many.
constexpr double TidySeconds = 60;

constexpr std::size_t AtOnce = 50; // pictures; a second or so

} // namespace

DiskSide::DiskSide(const ServiceContext &context, Preferences &preferences, LegacyCaptions &legacy,
                   DiskPorts ports)
    : m_context(context)
    , m_preferences(preferences)
    , m_legacy(legacy)
    , m_ports(std::move(ports))
    , m_desktops(context.platform.files, [this] { return m_context.folders.desktopsFile(); })
    , m_letGo(context.platform.files, [this] { return m_context.folders.letGoFile(); })
{ }

void DiskSide::attachWindow(MainWindow &window)
{
    m_window = &window;
    auto *item = new QAction(tr("&Disk Space…"), &window);
    item->setObjectName(QStringLiteral("diskSpaceMenuItem"));
    connect(item, &QAction::triggered, this, &DiskSide::showSheet);
    window.viewMenu().addSeparator();
    window.viewMenu().addAction(item);
}

QString DiskSide::pathOf(const ThumbView &cell) const
{
    return m_context.links.picLinkToPath(removeDoubleDomain(cell.picPath()), false, false);
}

// Empty for a file from elsewhere.
QString DiskSide::nameIn(const QString &path) const
{
    const QString folder = m_context.folders.moravelFolder();
    const bool isOurs = !folder.isEmpty() && path.startsWith(folder);
    const QString name = isOurs ? path.mid(folder.size()) : QString();
    return name.contains(u'/') ? QString() : name;
}

bool DiskSide::isLetGo(const QString &path) const
{
    return m_letGo.contains(nameIn(path));
}

void DiskSide::keep(const QString &path)
{
    m_desktops.insert({nameIn(path)});
}

void DiskSide::wantBack(const ThumbView &cell)
{
    m_letGo.remove({nameIn(pathOf(cell))});
}

void DiskSide::pictureArrived(const QString &path)
{
    m_letGo.remove({nameIn(path)});
    tidySoon();
    if (path != m_forDesktop)
        return;
    // In a turn of its own: until then the file counts as one that is on its way.
    m_context.platform.loop.schedule(0, [this, path, self = QPointer(this)] {
        if (self && path == std::exchange(m_forDesktop, {}))
            m_ports.setDesktop(path);
    });
}

void DiskSide::fetchForDesktop(ThumbView &cell)
{
    const QString path = pathOf(cell);
    if (path.isEmpty())
        return;
    m_forDesktop = path;
    m_ports.fetch(cell);
}

// The collection ---------------------------------------------------------------------------------

// Also what stands where a picture was let go: the user has taken it out of the Trash.
QSet<QString> DiskSide::staying(const std::vector<FileEntry> &files) const
{
    QSet<QString> names = m_desktops.names();
    for (const QString &path : m_ports.shownPictures())
        names.insert(nameIn(path));
    for (const FileEntry &file : files) {
        if (m_letGo.contains(file.name))
            names.insert(file.name);
    }
    return names;
}

void DiskSide::look(std::function<void(const Collection &)> done)
{
    struct Work
    {
        QString folder, thumbsFolder;
        CollectionFacts facts;
        std::unique_ptr<FileBytes> records;
        Collection collection;
    };

    auto work = std::make_shared<Work>();
    work->folder = m_context.folders.moravelFolder();
    work->thumbsFolder = m_context.folders.thumbsFolder();
    work->facts.legacy = m_legacy.readOldTextData();
    work->facts.sourceNames = m_context.sourceNames;
    const auto list = [work, open = m_context.records.openingTextData(),
                       &files = m_context.platform.files] {
        work->records = open();
        work->facts.pictures = files.entries(work->folder).value_or(std::vector<FileEntry>());
        work->facts.thumbs = files.entries(work->thumbsFolder).value_or(std::vector<FileEntry>());
    };
    const auto sort = [work] {
        if (work->records)
            work->facts.records = work->records->bytes();
        work->collection = collectionOf(work->facts);
        work->facts = {}; // here rather than on the main thread: there are many
        work->records.reset();
    };
    // The names that stay are looked up between the two, where they belong: on the main thread.
    m_worker.run(list, [this, work, sort, done = std::move(done)] {
        work->facts.staying = staying(work->facts.pictures);
        m_worker.run(sort, [work, done] { done(work->collection); });
    });
}

void DiskSide::showSheet()
{
    if (auto *open = m_window->findChild<DiskSpaceSheet *>()) {
        open->raise();
        return;
    }
    auto *sheet = new DiskSpaceSheet(m_window, m_preferences.readDiskLimit());
    sheet->onAccepted = [this](int gigabytes) {
        m_preferences.saveDiskLimit(gigabytes);
        tidy();
    };
    sheet->open();
    look([sheet = QPointer(sheet)](const Collection &collection) {
        if (sheet)
            sheet->setCollection(collection);
    });
}

void DiskSide::tidySoon()
{
    if (m_context.platform.trash && m_preferences.readDiskLimit() > 0)
        m_soon = m_context.platform.loop.after(TidySeconds, [this] { tidy(); });
}

void DiskSide::tidy()
{
    m_soon.reset();
    const int gigabytes = m_preferences.readDiskLimit();
    if (!m_context.platform.trash || gigabytes == 0 || m_isTidying)
        return;
    look([this, gigabytes](const Collection &collection) {
        letGo(picturesToLetGo(collection, bytesOfGigabytes(gigabytes)));
    });
}

// A few at a time, and remembered when they are gone: where the program ends in between, what is still here
// must not look as if the user had taken it out of the Trash.
void DiskSide::letGo(std::vector<SparePicture> pictures)
{
    const QSet<QString> chosen = staying({}); // perhaps only now, while those before went
    std::erase_if(pictures, [&](const SparePicture &one) { return chosen.contains(one.name); });
    m_isTidying = !pictures.empty();
    if (pictures.empty())
        return;
    const std::size_t count = std::min(pictures.size(), AtOnce);
    const QString folder = m_context.folders.moravelFolder();
    QStringList names;
    QStringList paths;
    for (std::size_t i = 0; i < count; ++i) {
        names.append(pictures[i].name);
        paths.append(folder + pictures[i].name);
    }
    pictures.erase(pictures.begin(), pictures.begin() + static_cast<std::ptrdiff_t>(count));
    const auto done = [this, names, rest = std::move(pictures),
                       self = QPointer(this)](const QList<FileResult<void>> &results) {
        if (!self)
            return;
        QStringList gone;
        for (qsizetype i = 0; i < results.size(); ++i) {
            if (results[i])
                gone.append(names[i]);
        }
        m_letGo.insert(gone);
        letGo(rest);
    };
    m_context.platform.trash->moveToTrash(paths, done);
}

} // namespace moravel
