// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/MainWindow.h"
#include "mainwindow/SourceGrid.h"
#include "platform/DesktopPictures.h"
#include "service/PictureService.h"
#include "share/BugReport.h"
#include "share/Sharing.h"

namespace moravel {

/// What sharing and feedback need beyond the platform: the user's other programs, and the product's
/// settings.
struct ShareSetup
{
    UrlOpener &urls;
    Clipboard &clipboard;
    ShareAddresses addresses;
    QString supportAddress; ///< Of the makers, for bug reports.
    QString version; ///< Of the program.
};

/// Ties news, sharing and feedback to the window and the service client.
class ShareSide : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive this object. Without @p pictures a bug report tells the screens alone.
    ShareSide(const ServiceContext &context, Preferences &preferences, PictureService &service,
              const ShareSetup &setup, DesktopPictures *pictures);

    /// Fills the window's Help menu, and shows the news on it. Once; @p sources must outlive this object.
    void attachWindow(MainWindow &window, const SourceGrid &sources);

    /// Gives the large picture window, on which sharing informs; null for the main window.
    std::function<QWidget *()> largeWindow;

    // Commands -----------------------------------------------------------------------------------

    void shareFacebook(ThumbView &currentThumb);
    void shareTwitter(ThumbView &currentThumb);
    void shareEmail(ThumbView &currentThumb);

    void openUrl(const QString &address) { m_setup.urls.open(address); }

    void bugReport();
    void releaseNotes();

private:
    SharePorts sharePorts();
    void fillNewsPorts(MainWindow &window);
    void inTurn(ThumbView &cell, void (Sharing::*command)(ThumbView &));
    BugReport report() const;
    QList<DesktopScreen> screens() const;

    ServiceContext m_context;
    Preferences &m_preferences;
    PictureService &m_service;
    ShareSetup m_setup;
    DesktopPictures *m_pictures;
    Sharing m_sharing;
    MainWindow *m_window = nullptr;
    const SourceGrid *m_sources = nullptr;
};

} // namespace moravel
