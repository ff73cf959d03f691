// SPDX-License-Identifier: MIT
#pragma once

#include "browser/BrowserContext.h"
#include "browser/BrowserWindow.h"

class QMessageBox;

namespace moravel {

class Browser;

/// The commands of the browser on its selected items; the first selected item is the one at the lowest index.
class BrowserActions
{
public:
    /// Return code of the first button of an alert.
    static constexpr int FirstButton = 1000;

    BrowserActions(Browser &browser, const BrowserContext &context);

    /// The commands that can be offered.
    BrowserCommands commands();

    void desktopFromBrowser();
    void cellWasDoubleClickedAtIndex(int index);
    /// Opens the large picture window on the browser cell.
    void infoFromBrowser();
    /// The same with any picture file.
    void showLarge(const QString &path);
    void finderFromBrowser();
    void deleteFromBrowser();
    /// Asks, unless Alt is held, and deletes.
    void removeItemsAtIndexes(const QList<int> &ascending);
    void didCloseDeleteAlert(int returnCode);

private:
    QString firstSelectedPath() const;
    QList<int> itemsForDeletion() const;
    void deleteItems(const QList<int> &indexes);
    void trash(const QStringList &paths, const QStringList &thumbs) const;
    QStringList recordedNames(const QStringList &paths) const;
    void markDeleted(ThumbView &cell) const;
    void fillBrowserCell(const QString &path) const;

    Browser &m_browser;
    const BrowserContext &m_context;
    QList<int> m_indexesForDeletion;
    QStringList
        m_pathsForDeletion; ///< Of these items, should the items be made anew while the sheet is open.
};

} // namespace moravel
