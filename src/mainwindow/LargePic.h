// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/LargePicPlan.h"
#include "platform/Images.h"
#include "store/Folders.h"
#include "store/PictureLinks.h"
#include "thumb/ThumbCells.h"

#include <QIcon>
#include <QPointer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace moravel {

class LargePicWindow;

/// What the large picture window needs of its neighbours. A command whose port is empty is not offered.
struct LargePicPorts
{
    /// Plain path of the desktop's picture; ends in "/" for a folder.
    std::function<QString()> currentDesktopPath;
    /// Returns the file of a cell's picture, or "" after starting its download.
    std::function<QString(ThumbView &)> largePicFilePathForThumb;
    std::function<bool(const QString &path)> isDownloading;
    /// Opens the system's settings of the desktop picture.
    std::function<void()> showDesktopPrefs;
    std::function<void(const QString &path)> setDesktop;
    /// Shows a file, marked, in the file manager.
    std::function<void(const QString &path)> revealFile;
    /// Fetches a deleted picture back.
    std::function<void(ThumbView &)> reloadDeletedPic;
    /// Looks up caption and text of a cell, and has it shown again then.
    std::function<void(ThumbView &)> refreshCaption;
    /// Deletes the picture of a cell, as a cell of the grid whatever its tag; the window is closed by then.
    std::function<void(ThumbView &)> deletePic;
    std::function<void(ThumbView &)> shareEmail;
    std::function<void(ThumbView &)> shareFacebook;
    std::function<void(ThumbView &)> shareTwitter;
    /// Asks the service for the original page of a cell's picture; gives "" when there is none. Nothing of
    /// the program's own sequence happens until it has been dealt with.
    std::function<void(const ThumbView &, std::function<void(const QString &page)> done)> findPage;
    /// Opens a web address in the user's browser.
    std::function<void(const QString &address)> openUrl;
    /// Icon of the program that opens addresses of a scheme: a path, or a name of the icon theme.
    std::function<QString(const QString &scheme)> iconForScheme;
    /// Gets the window when it is made, before it is shown.
    std::function<void(QWidget &)> windowMade;
    /// Makes markup from outside safe to show; without it the text is shown as it stands.
    std::function<QString(const QString &html)> sanitised;
};

/// What it works with; lent for its whole life.
struct LargePicContext
{
    ThumbCells &cells;
    Files &files;
    Images &images;
    Folders &folders;
    const PictureLinks &links;
};

/// Shows the picture of a cell in the large picture window, which is made when it is first needed. Main
/// thread only.
class LargePic : public QObject
{
    Q_OBJECT

public:
    LargePic(const LargePicContext &context, LargePicPorts ports);
    ~LargePic() override;

    /// For what is tied later: a port counts from the first picture on.
    LargePicPorts &ports() { return m_ports; }

    /// The user wants to see the picture of a cell: the window comes to the front. Two clicks on a deleted
    /// one restore it.
    void showLargePic(ThumbView &cell, int clickCount);
    /// Shows a cell that has changed, and leaves the window where it is: the user may be at work elsewhere.
    void showAgain(ThumbView &cell);
    void previousLargePic();
    void nextLargePic();
    void showParent();
    /// Shows that caption and text are being looked up.
    void showLookingForInfo();

    bool isVisible() const;

    QString currentLargePicPath() const { return m_currentLargePicPath; }

    ThumbView *currentThumb() const { return m_currentThumb; }

    /// The cell is none of the grid any more; what is shown stays.
    void forgetCurrentThumb() { m_currentThumb = nullptr; }

    // Of a download to the file that the window waits for.
    void showProgress(std::optional<float> percent, const QString &text);
    void hideProgress();
    void showFailure();
    void hideCantShow();
    void displayPicFile(const QString &path);

    /// Tool tip of the button that opens the original page; empty hides it.
    void setParentToolTip(const QString &toolTip);

    /// Null until it was needed.
    LargePicWindow *pic() const { return m_pic.get(); }

private:
    void makeWindow();
    QString fileOf(const ThumbView &cell) const;
    LargePicAnswer answerFor(const ThumbView &cell, int clickCount, const QString &path) const;
    bool takeOver(ThumbView &cell, int clickCount);
    LargePicFacts factsOf(ThumbView &cell);
    void carryOut(const LargePicPlan &plan);
    void showCaption();
    void pictureLoaded(bool isPicture);
    void showInfo();
    void clearInfo();
    void linkClicked(const QUrl &link);
    void openParent(const QString &address, const ThumbView *cell);
    void step(bool forth);
    bool canStepTo(const ThumbView &cell) const;
    void deleteShown();
    QIcon iconFor(const QString &scheme, const QString &themeName, const QString &ownName) const;
    std::function<void()> onShown(const std::function<void(ThumbView &)> &port);

    LargePicContext m_context;
    LargePicPorts m_ports;
    std::unique_ptr<LargePicWindow> m_pic;
    QPointer<ThumbView> m_currentThumb;
    QString m_currentLargePicPath;
    QString m_captionName; ///< The caption line before the picture's size.
    QString m_fileSize;
    QString m_parentToolTip;
    std::shared_ptr<int> m_alive =
        std::make_shared<int>(); ///< Late answers look whether we are there.
};

} // namespace moravel
