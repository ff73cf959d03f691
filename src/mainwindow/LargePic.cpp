// SPDX-License-Identifier: MIT
#include "mainwindow/LargePic.h"

#include "mainwindow/Icons.h"
#include "mainwindow/LargePicStepping.h"
#include "mainwindow/LargePicWindow.h"
#include "mainwindow/PicInfo.h"
#include "mainwindow/PictureSizeText.h"
#include "thumb/OriginalPage.h"

#include <QIcon>

namespace moravel {

LargePic::LargePic(const LargePicContext &context, LargePicPorts ports)
    : m_context(context), m_ports(std::move(ports))
{ }

LargePic::~LargePic() = default;

std::function<void()> LargePic::onShown(const std::function<void(ThumbView &)> &port)
{
    if (!port)
        return {};
    return [this, port] {
        if (m_currentThumb)
            port(*m_currentThumb);
    };
}

void LargePic::makeWindow()
{
    LargePicCommands commands;
    commands.previousLargePic = [this] { previousLargePic(); };
    commands.nextLargePic = [this] { nextLargePic(); };
    if (m_ports.openUrl)
        commands.showParent = [this] { showParent(); };
    if (m_ports.setDesktop)
        commands.setDesktop = [this] { m_ports.setDesktop(m_currentLargePicPath); };
    if (m_ports.revealFile)
        commands.showPicInFinder = [this] { m_ports.revealFile(m_currentLargePicPath); };
    commands.shareEmail = onShown(m_ports.shareEmail);
    commands.shareFacebook = onShown(m_ports.shareFacebook);
    commands.shareTwitter = onShown(m_ports.shareTwitter);
    if (m_ports.deletePic)
        commands.deletePic = [this] { deleteShown(); };
    m_pic = std::make_unique<LargePicWindow>(m_context.images, commands);
    m_pic->setParentToolTip(m_parentToolTip);
    if (m_ports.windowMade)
        m_ports.windowMade(*m_pic);
    m_pic->onClosed = [this] {
        clearInfo();
        m_pic->largeImage().showFile({}); // a large one takes memory
    };
    connect(&m_pic->largeImage(), &LargeImageView::loaded, this, &LargePic::pictureLoaded);
    connect(&m_pic->picDetails(), &QTextBrowser::anchorClicked, this, &LargePic::linkClicked);
}

void LargePic::showLargePic(ThumbView &cell, int clickCount)
{
    if (!takeOver(cell, clickCount))
        return;
    m_pic->bringToFront(); // first: only a window that is shown knows how large its picture will be
    carryOut(planLargePic(factsOf(cell)));
}

void LargePic::showAgain(ThumbView &cell)
{
    if (takeOver(cell, 0))
        carryOut(planLargePic(factsOf(cell)));
}

QString LargePic::fileOf(const ThumbView &cell) const
{
    QString link = cell.picPath();
    if (cell.tag() == ThumbView::DesktopTag)
        return link; // a path already
    return m_context.links.picLinkToPath(link, false, false);
}

LargePicAnswer LargePic::answerFor(const ThumbView &cell, int clickCount, const QString &path) const
{
    LargePicWish wish;
    wish.tag = cell.tag();
    wish.deleted = cell.thumbPath() == ThumbView::deletedMark();
    wish.clickCount = clickCount;
    wish.desktopIsFolder =
        m_ports.currentDesktopPath && m_ports.currentDesktopPath().endsWith(u'/');
    wish.path = path;
    return answerTo(wish);
}

bool LargePic::takeOver(ThumbView &cell, int clickCount)
{
    const QString path = fileOf(cell);
    const LargePicAnswer answer = answerFor(cell, clickCount, path);
    if (answer == LargePicAnswer::Restore && m_ports.reloadDeletedPic)
        m_ports.reloadDeletedPic(cell);
    if (answer == LargePicAnswer::DesktopSettings && m_ports.showDesktopPrefs)
        m_ports.showDesktopPrefs();
    if (answer != LargePicAnswer::Show)
        return false;
    if (!m_pic)
        makeWindow();
    m_currentThumb = &cell;
    m_currentLargePicPath = path;
    m_pic->setCaption(cell.captionString());
    clearInfo();
    m_pic->setParentIcon(
        iconFor(QStringLiteral("http"), QStringLiteral("web-browser"), QStringLiteral("web")));
    m_pic->setEmailIcon(
        iconFor(QStringLiteral("mailto"), QStringLiteral("internet-mail"), QStringLiteral("mail")));
    m_pic->showParentButton(true);
    m_pic->enableParentButton(true);
    m_pic->showCantShow(false);
    m_pic->hideProgress();
    return true;
}

LargePicFacts LargePic::factsOf(ThumbView &cell)
{
    LargePicFacts facts;
    facts.longSourceName = cell.longSourceName();
    facts.dateString = cell.dateString();
    facts.captionString = cell.captionString();
    facts.path = m_currentLargePicPath;
    facts.pictureFolder = m_context.folders.moravelFolder();
    facts.isImage = m_context.images.isImageExtension(pictureExtension(facts.path));
    const bool exists = m_context.files.exists(facts.path);
    facts.downloading = !exists && m_ports.isDownloading && m_ports.isDownloading(facts.path);
    const bool own = facts.path.startsWith(facts.pictureFolder);
    if (exists || facts.downloading)
        facts.large = facts.path;
    else if (own
             && m_ports.largePicFilePathForThumb) // elsewhere on the disk is nothing to download
        facts.large = m_ports.largePicFilePathForThumb(cell);
    return facts;
}

void LargePic::carryOut(const LargePicPlan &plan)
{
    m_pic->setWindowTitle(plan.title);
    m_pic->setWindowFilePath(m_currentLargePicPath);
    m_captionName = plan.captionName;
    m_fileSize =
        plan.picture.isEmpty() ? QString() : prettyFileSize(m_context.files.size(plan.picture));
    m_pic->largeImage().showFile(plan.picture);
    showCaption();
    m_pic->showCantShow(plan.cantShow);
    if (!plan.isOwn) {
        m_pic->showParentButton(false);
        m_pic->enableSharing(false);
    }
    if (plan.info)
        showInfo();
    if (plan.progress)
        m_pic->showProgress(std::nullopt, {}); // the next bytes tell how far it is
}

void LargePic::showCaption()
{
    const LargeImageView &view = m_pic->largeImage();
    const bool known = !view.image().isNull() || view.failed();
    m_pic->setCaption(known ? pictureSizeText(m_captionName, view.pictureSize(), m_fileSize)
                            : m_captionName);
}

void LargePic::pictureLoaded(bool isPicture)
{
    showCaption();
    m_pic->showCantShow(!isPicture);
}

void LargePic::showInfo()
{
    if (!m_currentThumb)
        return;
    const InfoPlan plan = planInfo(m_currentThumb->infoString());
    if (plan.lookUp) {
        showLookingForInfo();
        if (m_ports.refreshCaption)
            m_ports.refreshCaption(*m_currentThumb);
        return;
    }
    if (plan.isOld)
        m_pic->showParentButton(false);
    if (m_ports.sanitised)
        m_pic->picDetails().showHtml(m_ports.sanitised(plan.text));
    else
        m_pic->picDetails().showText(plan.text);
    m_pic->enableSharing(true);
}

void LargePic::showLookingForInfo()
{
    if (m_pic)
        m_pic->picDetails().showText(lookingForInfo());
}

void LargePic::clearInfo()
{
    m_pic->picDetails().showText({});
}

void LargePic::linkClicked(const QUrl &link)
{
    const LinkAction action = linkAction(link);
    if (action == LinkAction::RefreshCaption && m_ports.refreshCaption && m_currentThumb)
        m_ports.refreshCaption(*m_currentThumb);
    else if (action == LinkAction::OpenInBrowser && m_ports.openUrl)
        m_ports.openUrl(QString::fromLatin1(link.toEncoded()));
}

void LargePic::showParent()
{
    if (!m_currentThumb)
        return;
    const QString page =
        originalPage(m_currentThumb->shortSourceName(), m_currentThumb->parentPath());
    if (!page.isEmpty() || !m_ports.findPage) {
        openParent(page, m_currentThumb);
        return;
    }
    m_pic->enableParentButton(false); // until the answer, at the latest when it is given up
    m_ports.findPage(
        *m_currentThumb,
        [this, cell = m_currentThumb, alive = std::weak_ptr(m_alive)](const QString &found) {
            if (alive.expired())
                return;
            m_pic->enableParentButton(true);
            openParent(found.trimmed(), cell);
        });
}

void LargePic::openParent(const QString &address, const ThumbView *cell)
{
    const QUrl url(address);
    if (isWebAddress(url))
        m_ports.openUrl(QString::fromLatin1(url.toEncoded()));
    else if (cell && cell == m_currentThumb)
        m_pic->setParentIcon(themedIcon(QStringLiteral("stop")));
}

void LargePic::previousLargePic()
{
    step(false);
}

void LargePic::nextLargePic()
{
    step(true);
}

/// A cell without a picture is passed over: showing it would do nothing, and the next step come to it again.
bool LargePic::canStepTo(const ThumbView &cell) const
{
    return !cell.isHidden() && answerFor(cell, 0, fileOf(cell)) == LargePicAnswer::Show;
}

void LargePic::step(bool forth)
{
    const ThumbCells &cells = m_context.cells;
    StepCells steps;
    for (int i = 0; i < cells.count(); ++i) {
        steps.grid.push_back(canStepTo(cells.at(i)));
        if (&cells.at(i) == m_currentThumb)
            steps.position = i;
    }
    const ThumbView &desktop = cells.desktopThumb();
    steps.desktop = !cells.currentDesktopShowingInThumbs() && !desktop.imageView().isNull()
        && canStepTo(desktop);
    const std::optional<int> position = forth ? nextPosition(steps) : previousPosition(steps);
    if (!position)
        return;
    const bool isDesktop = *position == StepCells::DesktopPosition;
    showLargePic(isDesktop ? cells.desktopThumb() : cells.at(*position), 1);
}

void LargePic::deleteShown()
{
    const QPointer<ThumbView> cell = m_currentThumb;
    m_pic->close();
    if (cell)
        m_ports.deletePic(*cell);
}

bool LargePic::isVisible() const
{
    return m_pic && m_pic->isVisible();
}

void LargePic::showProgress(std::optional<float> percent, const QString &text)
{
    if (m_pic)
        m_pic->showProgress(percent, text);
}

void LargePic::hideProgress()
{
    if (m_pic)
        m_pic->hideProgress();
}

void LargePic::showFailure()
{
    if (!m_pic)
        return;
    m_pic->showNotice(ThumbView::tr("The picture could not be loaded"));
    showInfo(); // a window that waited has none yet
}

void LargePic::hideCantShow()
{
    if (m_pic)
        m_pic->showCantShow(false);
}

void LargePic::displayPicFile(const QString &path)
{
    if (!isVisible() || path != m_currentLargePicPath)
        return;
    m_captionName = m_currentThumb ? m_currentThumb->captionString() : QString();
    m_fileSize.clear();
    m_pic->largeImage().showFile(path, true);
    showInfo(); // a window that waited has none yet
}

void LargePic::setParentToolTip(const QString &toolTip)
{
    m_parentToolTip = toolTip;
    if (m_pic)
        m_pic->setParentToolTip(toolTip);
}

QIcon LargePic::iconFor(const QString &scheme, const QString &themeName,
                        const QString &ownName) const
{
    const QString name = m_ports.iconForScheme ? m_ports.iconForScheme(scheme) : QString();
    QIcon icon = name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
    if (icon.pixmap(16).isNull())
        icon = QIcon::fromTheme(themeName);
    return icon.isNull() ? themedIcon(ownName) : icon;
}

} // namespace moravel
