// SPDX-License-Identifier: MIT
#include "browser/Browser.h"

#include "browser/ImageBrowserView.h"
#include "browser/Logging.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QScrollBar>

#include <algorithm>
#include <functional>
#include <future>
#include <utility>

namespace moravel {

namespace {

constexpr int TitlePixels = 12; ///< Points of the screen.
constexpr qsizetype MostAdded = 10'000; ///< Files of one drop.

QSet<QString> filesIn(const Files &files, const QString &folder)
{
    QSet<QString> paths;
    const auto names = files.names(folder);
    if (!names) {
        qCInfo(lcBrowser) << "cannot list" << names.error().path << names.error().description;
        return paths;
    }
    paths.reserve(names->size());
    for (const QString &name : *names)
        paths.insert(folder + name);
    return paths;
}

/// The files that a drop means, in name order within a folder. For worker threads: it may be a slow disk.
QStringList filesOf(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        QStringList entries;
        QDirIterator it(path, QDir::Files);
        while (it.hasNext() && files.size() + entries.size() < MostAdded)
            entries.append(it.next());
        std::sort(entries.begin(), entries.end());
        files += entries;
    }
    return files.first(std::min(MostAdded, files.size()));
}

} // namespace

/// Where the user is: what is selected and what stands where.
struct Browser::Place
{
    ShownRows before;
    QList<int> selected;
    int current = -1;
    std::vector<int> anchors; ///< Items that should stay where they are; the first that can does.
    std::vector<int> tops; ///< Of the anchors, in the viewport.
};

Browser::Browser(const BrowserContext &context)
    : m_context(context)
    , m_thumbnails(context.thumbnails)
    , m_model(m_thumbnails)
    , m_actions(*this, m_context)
{
    m_model.toolTip = [this](int index) { return toolTip(index); };
    m_model.accessibleText = [this](int index) { return accessibleText(index); };
    connect(&m_thumbnails, &ThumbnailQueue::arrived, this, &Browser::thumbnailArrived);
}

Browser::~Browser() = default;

BrowserWindow &Browser::browserWindow()
{
    if (!m_window)
        buildWindow();
    return *m_window;
}

void Browser::buildWindow()
{
    m_window = std::make_unique<BrowserWindow>(m_model, m_context.look, m_actions.commands());
    if (m_context.ports.windowMade)
        m_context.ports.windowMade(*m_window);
    for (const QString &source : std::as_const(m_sources))
        m_window->addSourcePopupItem(source);
    connect(m_window.get(), &BrowserWindow::searchInBrowser, this, &Browser::searchInBrowser);
    connect(m_window.get(), &BrowserWindow::sourceInBrowser, this, &Browser::sourceInBrowser);
    connect(m_window.get(), &BrowserWindow::zoomSliderDidChange, this,
            &Browser::zoomSliderDidChange);
    ImageBrowserView &view = m_window->imageBrowser();
    connect(&view, &ImageBrowserView::visibleItemsChanged, this, &Browser::wantThumbnails);
    connect(&view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        m_actions.cellWasDoubleClickedAtIndex(index.row());
    });
    connect(&view, &ImageBrowserView::dropped, this, &Browser::addImages);
    connect(&view, &ImageBrowserView::firstPainted, this, [this] {
        if (m_assembled)
            take(std::exchange(m_assembled, nullptr));
    });
    if (m_context.look.pixmap)
        view.setMessageIcon([pixmap = m_context.look.pixmap](const QColor &colour, qreal scale) {
            return pixmap(QStringLiteral("picture"), 48, colour, scale);
        });
}

void Browser::addSourcePopupItem(const QString &longName)
{
    m_sources.append(longName);
    if (m_window)
        m_window->addSourcePopupItem(longName);
}

void Browser::picBrowser()
{
    m_thumbnails.clear(); // files may have changed since
    assembleBrowserData(); // reads while the window is being made
    BrowserWindow &window = browserWindow();
    window.setBrowserBackground();
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

// The collection ---------------------------------------------------------------------------------

void Browser::assembleBrowserData()
{
    struct Work
    {
        BrowserTexts texts;
        std::shared_ptr<const BrowserData> data;
    };

    auto work = std::make_shared<Work>();
    work->texts.folder = m_context.folders.moravelFolder();
    work->texts.legacy = m_context.legacy.readOldTextData();
    work->texts.isImageExtension = [&images = m_context.images](const QString &extension) {
        return images.isImageExtension(extension);
    };
    const auto read = [work, open = m_context.records.openingTextData(), &files = m_context.files] {
        auto listing =
            std::async(std::launch::async, filesIn, std::cref(files), work->texts.folder);
        const std::unique_ptr<FileBytes> records = open();
        if (records)
            work->texts.records = records->bytes();
        std::vector<BrowserRow> recorded = recordedRows(work->texts);
        work->data = std::make_shared<BrowserData>(browserData(std::move(recorded), listing.get()));
        work->texts.records = {};
    };
    m_context.ports.inBackground(read, [this, work, assembly = ++m_assemblies] {
        if (assembly == m_assemblies)
            takeSoon(work->data);
    });
}

/// A window that opens paints its frame first and the pictures second: together they would take longer than a
/// frame of the screen.
void Browser::takeSoon(std::shared_ptr<const BrowserData> data)
{
    const bool opens = m_window && m_window->isVisible() && !m_window->imageBrowser().wasPainted();
    m_assembled = opens ? data : nullptr;
    if (!opens)
        take(std::move(data));
}

void Browser::take(std::shared_ptr<const BrowserData> data)
{
    const auto before = std::exchange(m_browserData, std::move(data));
    m_captions = nullptr;
    searchInBrowser();
    indexCaptions(before);
}

/// A search that came before waits for it. @p before is let go on the way: a hundred thousand rows take long to
/// free.
void Browser::indexCaptions(const std::shared_ptr<const BrowserData> &before)
{
    auto index = std::make_shared<CaptionIndex>();
    m_context.ports.inBackground(
        [index, data = m_browserData, before] { *index = captionIndex(*data); },
        [this, index, data = m_browserData] {
            if (data != m_browserData)
                return;
            m_captions = index;
            searchInBrowser();
        });
}

void Browser::searchInBrowser()
{
    if (!m_browserData)
        return;
    BrowserWindow &window = browserWindow();
    const QString source = window.selectedSource();
    const BrowserFilter filter{window.searchText(), source, m_context.sourceNames.key(source)};
    if (filtersCaptions(filter) && !m_captions)
        return;
    static const CaptionIndex none;
    ShownRows found{m_browserData,
                    filteredRows(*m_browserData, m_captions ? *m_captions : none, filter)};
    const bool same = m_searchData && found == m_model.rows();
    m_searchData = found.rows;
    if (same)
        m_model.renewRows(std::move(found));
    else
        setupBrowsing();
}

// The items --------------------------------------------------------------------------------------

void Browser::setupBrowsing()
{
    if (!m_browserData)
        return;
    BrowserWindow &window = browserWindow();
    readZoom();
    const Place before = place();
    m_model.setRows({m_browserData, m_searchData.value_or(std::vector<int>())});
    showImages();
    restore(before);
    if (window.searchText().isEmpty())
        window.focusSearchField();
}

void Browser::readZoom()
{
    if (m_zoomIsRead)
        return;
    m_zoomIsRead = true;
    const float saved = m_context.preferences.readZoomPrefs();
    m_window->setZoom(saved == 0.0F ? UsualZoom : saved);
    QFont font(QStringLiteral("Helvetica"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(TitlePixels);
    m_window->imageBrowser().setCellTitleFont(font);
}

void Browser::showImages()
{
    m_window->showCount(m_model.numberOfItemsInImageBrowser());
    ImageBrowserView &view = m_window->imageBrowser();
    if (m_browserData->rows.empty())
        view.setMessage(tr("No pictures yet"),
                        tr("The pictures that Moravel gathers appear here, the newest first. "
                           "Drop files or folders to look at others."));
    else
        view.setMessage(tr("No pictures found"),
                        m_window->selectedSource().isEmpty()
                            ? tr("No caption contains what you are looking for.")
                            : tr("This source has no picture with such a caption."));
}

void Browser::removeItems(const QList<int> &ascending)
{
    const Place before = place();
    m_model.remove(ascending);
    showImages();
    restore(before);
    const int next = std::min(ascending.value(0), m_model.numberOfItemsInImageBrowser() - 1);
    QItemSelectionModel *selection = m_window->imageBrowser().selectionModel();
    if (!selection->currentIndex().isValid() && next >= 0) // the keyboard goes on from there
        selection->setCurrentIndex(m_model.index(next), QItemSelectionModel::NoUpdate);
}

void Browser::addImageWithPath(const QString &path)
{
    if (m_context.images.isImageExtension(QFileInfo(path).suffix())) {
        m_model.append({MyImageObject(path)});
        browserWindow().showCount(m_model.numberOfItemsInImageBrowser());
    }
}

void Browser::addImages(const QStringList &paths)
{
    auto files = std::make_shared<QStringList>();
    m_context.ports.inBackground(
        [files, paths] { *files = filesOf(paths); },
        [this, files] {
            std::vector<MyImageObject> images;
            for (const QString &file : *files) {
                if (m_context.images.isImageExtension(QFileInfo(file).suffix()))
                    images.emplace_back(file);
            }
            m_model.append(images);
            browserWindow().showCount(m_model.numberOfItemsInImageBrowser());
        });
}

// Selection and place ----------------------------------------------------------------------------

Browser::Place Browser::place() const
{
    const ImageBrowserView &view = m_window->imageBrowser();
    Place place{m_model.rows(), view.selectedItems(), view.currentIndex().row(), {}, {}};
    const ImageGrid::Span visible = view.visibleItems();
    const auto add = [&](int index) {
        place.anchors.push_back(index);
        place.tops.push_back(view.grid().cell(index).top() - view.verticalScrollBar()->value());
    };
    const bool holds = place.current >= visible.first && place.current <= visible.last
        && std::binary_search(place.selected.begin(), place.selected.end(), place.current);
    if (holds)
        add(place.current);
    if (view.verticalScrollBar()->value() == 0)
        return place;
    for (int index = visible.first; index <= visible.last; ++index)
        add(index);
    return place;
}

void Browser::restore(const Place &place)
{
    ImageBrowserView &view = m_window->imageBrowser();
    std::vector<int> indexes(place.selected.begin(), place.selected.end());
    indexes.insert(indexes.end(), place.anchors.begin(), place.anchors.end());
    indexes.push_back(place.current);
    std::sort(indexes.begin(), indexes.end());
    indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
    const std::vector<int> places = placesNow(place.before, indexes, m_model.rows());
    const auto now = [&](int index) {
        const auto at = std::lower_bound(indexes.begin(), indexes.end(), index);
        return places[static_cast<std::size_t>(at - indexes.begin())];
    };
    QList<int> selected;
    for (const int index : place.selected)
        selected.append(now(index));
    selected.removeAll(-1);
    std::sort(selected.begin(), selected.end());
    view.select(selected);
    if (const int current = now(place.current); current >= 0)
        view.selectionModel()->setCurrentIndex(m_model.index(current),
                                               QItemSelectionModel::NoUpdate);
    int top = 0;
    for (std::size_t i = 0; i < place.anchors.size(); ++i) {
        if (const int index = now(place.anchors[i]); index >= 0) {
            top = view.grid().cell(index).top() - place.tops[i];
            break;
        }
    }
    view.verticalScrollBar()->setValue(top);
}

void Browser::zoomSliderDidChange(float zoom)
{
    m_window->imageBrowser().setZoomValue(zoom);
    m_context.preferences.saveZoomPrefs(zoom);
}

} // namespace moravel
