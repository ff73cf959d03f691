// SPDX-License-Identifier: MIT
#pragma once

#include "browser/BrowserLook.h"

#include <QWidget>

#include <functional>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QSlider;
class QToolBar;

namespace moravel {

class BrowserModel;
class ImageBrowserView;

/// Commands on the selected items; one that is not there is not offered.
struct BrowserCommands
{
    std::function<void()> desktopFromBrowser;
    std::function<void()> infoFromBrowser;
    std::function<void()> finderFromBrowser;
    std::function<void()> deleteFromBrowser;
};

/// The window of the collection: tool bar, filters, the image browser, and below it count and zoom. It
/// decides nothing.
class BrowserWindow : public QWidget
{
    Q_OBJECT

public:
    BrowserWindow(BrowserModel &model, const BrowserLook &look, const BrowserCommands &commands);

    ImageBrowserView &imageBrowser() const { return *m_imageBrowser; }

    /// Paints the image browser's background in its grey, the same in light and dark surroundings.
    void setBrowserBackground();

    void addSourcePopupItem(const QString &longName);
    QString selectedSource() const; ///< Long name; empty for all.
    QString searchText() const;
    void focusSearchField();

    /// Sets the image browser's zoom and the slider; tells nobody.
    void setZoom(float zoom);
    void showCount(int pictures);

Q_SIGNALS:
    void searchInBrowser();
    void sourceInBrowser();
    void zoomSliderDidChange(float zoom);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeHeader();
    void addSearchIcons();
    QWidget *makeFooter();
    void makeCommands(const BrowserCommands &commands);
    void addCommand(const std::function<void()> &command, const char *name, const QString &icon,
                    const QString &title, const QList<QKeySequence> &keys);
    void addKey(const QList<QKeySequence> &keys, const std::function<void()> &command);
    void addZoomKeys();
    void tieImageBrowser();
    void followSelection();
    void stepZoom(int steps);

    BrowserLook m_look;
    ImageBrowserView *m_imageBrowser;
    QToolBar *m_toolBar = nullptr;
    QMenu *m_menu = nullptr;
    QList<QAction *> m_commands;
    QComboBox *m_sourcePopup = nullptr;
    QLineEdit *m_searchField = nullptr;
    QLabel *m_pictureCount = nullptr;
    QSlider *m_zoomSlider = nullptr;
};

} // namespace moravel
