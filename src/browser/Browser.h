// SPDX-License-Identifier: MIT
#pragma once

#include "browser/BrowserActions.h"
#include "browser/BrowserContext.h"
#include "browser/BrowserModel.h"
#include "browser/BrowserRows.h"
#include "browser/BrowserWindow.h"
#include "browser/ThumbnailQueue.h"

#include <QObject>

#include <memory>
#include <optional>

namespace moravel {

/// The picture browser: reads the collection, filters it, and shows what passes in its window.
///
/// The records and the folder are read on a worker thread, each once; the window shows what was there
/// before until that is done.
class Browser : public QObject
{
    Q_OBJECT

public:
    explicit Browser(const BrowserContext &context);
    ~Browser() override;

    /// Brings the window to the front and reads the collection anew.
    void picBrowser();
    void assembleBrowserData();
    /// Applies the filters; shows the result when it is another one than before.
    void searchInBrowser();

    void sourceInBrowser() { searchInBrowser(); }

    /// Makes the items anew from the rows that pass the filters. Selection and place stay with the items.
    void setupBrowsing();
    void zoomSliderDidChange(float zoom);
    void addSourcePopupItem(const QString &longName);

    /// Shows a further picture file, until the items are made anew.
    void addImageWithPath(const QString &path);

    /// Shows a file, or the files of a folder (not of those within), up to a limit.
    void addImagesFromDirectory(const QString &path) { addImages({path}); }

    /// Takes items out, without asking what becomes of their files.
    void removeItems(const QList<int> &ascending);

    BrowserModel &images() { return m_model; }

    BrowserActions &actions() { return m_actions; }

    /// Builds the window at its first use.
    BrowserWindow &browserWindow();

    bool isWindowBuilt() const { return m_window != nullptr; }

private:
    struct Place;

    void buildWindow();
    void addImages(const QStringList &paths);
    void takeSoon(std::shared_ptr<const BrowserData> data);
    void take(std::shared_ptr<const BrowserData> data);
    void indexCaptions(const std::shared_ptr<const BrowserData> &before);
    void showImages();
    void readZoom();
    Place place() const;
    void restore(const Place &place);
    void wantThumbnails();
    void thumbnailArrived(const QString &path);
    QString toolTip(int index) const;
    QString accessibleText(int index) const;

    const BrowserContext m_context;
    ThumbnailQueue m_thumbnails;
    BrowserModel m_model;
    BrowserActions m_actions;
    QStringList m_sources; ///< Of the source pop-up, as long as there is no window.
    std::shared_ptr<const BrowserData> m_browserData;
    std::shared_ptr<const CaptionIndex> m_captions; ///< Of the data; null until they are indexed.
    std::optional<std::vector<int>>
        m_searchData; ///< Positions in the data; none before the first search.
    int m_assemblies = 0;
    std::shared_ptr<const BrowserData> m_assembled; ///< Until the window has been painted.
    bool m_zoomIsRead = false;
    std::unique_ptr<BrowserWindow> m_window; ///< Goes first: it looks at the model.
};

} // namespace moravel
