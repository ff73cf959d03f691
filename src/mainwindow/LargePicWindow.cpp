// SPDX-License-Identifier: MIT
#include "mainwindow/LargePicWindow.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/StandardFrame.h"

#include <QAction>
#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QSplitter>
#include <QToolButton>

namespace moravel {

namespace {

constexpr int Margin =
    LargeImageView::SideMargin; // texts and buttons stand below the picture's edges
constexpr int ButtonSize = 30;
constexpr int IconInset = 9; // from the edge of a button to its icon
constexpr int TextInset = 4; // the same, of a button with a text
constexpr QSize StartSize(920, 780);
constexpr int StartTextHeight = 216;
constexpr int NoticeWidth = 420;

QLabel *makeNotice(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMaximumWidth(NoticeWidth);
    label->hide();
    return label;
}

/// Moves @p frame so that it lies on the screen as far as it fits.
QRect ontoScreen(QRect frame, const QRect &screen)
{
    frame.moveRight(std::min(frame.right(), screen.right()));
    frame.moveBottom(std::min(frame.bottom(), screen.bottom()));
    frame.moveLeft(std::max(frame.left(), screen.left()));
    frame.moveTop(std::max(frame.top(), screen.top()));
    return frame;
}

/// Where a row begins and where it ends, in the direction of reading.
void setSideMargins(QLayout &row, int before, int after)
{
    const bool mirrored = QGuiApplication::isRightToLeft();
    row.setContentsMargins(mirrored ? after : before, 0, mirrored ? before : after, 0);
}

} // namespace

LargePicWindow::LargePicWindow(Images &images, LargePicCommands commands)
    : m_commands(std::move(commands))
    , m_largeImage(new LargeImageView(images, this))
    , m_picDetails(new PicDetails(this))
    , m_actions(
          this, m_commands, *m_largeImage, [this] { toggleStandardFrame(); }, [this] { leave(); })
    , m_splitter(new QSplitter(Qt::Vertical, this))
{
    setObjectName(QStringLiteral("pic"));
    setAttribute(Qt::WA_QuitOnClose, false); // the main window ends the program
    buildNotices();
    m_splitter->addWidget(m_largeImage);
    m_splitter->addWidget(buildTexts());
    connect(m_actions.fullScreen, &QAction::triggered, this,
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(7);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_splitter);
    connect(m_largeImage, &LargeImageView::doubleClicked, this,
            &LargePicWindow::toggleStandardFrame);
    setStartSize();
    m_largeImage->setFocus();
}

void LargePicWindow::buildNotices()
{
    m_cantShowField = makeNotice(QStringLiteral("cantShowField"), m_largeImage);
    m_cantShowField->setText(tr("This file cannot be shown as a picture."));
    m_progressField = makeNotice(QStringLiteral("progressField"), m_largeImage);
    m_progress = new QProgressBar(m_largeImage);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setAccessibleName(tr("Download"));
    m_progress->setTextVisible(false);
    m_progress->setFixedSize(280, 8);
    m_progress->hide();
    auto *column = new QVBoxLayout(m_largeImage);
    column->addStretch(1);
    for (QWidget *notice :
         {static_cast<QWidget *>(m_cantShowField), static_cast<QWidget *>(m_progress),
          static_cast<QWidget *>(m_progressField)}) {
        notice->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto *row = new QHBoxLayout; // centred, yet as wide as its text needs
        row->addStretch(1);
        row->addWidget(notice, 100);
        row->addStretch(1);
        column->addLayout(row);
    }
    column->addStretch(1);
    column->setSpacing(10);
}

QWidget *LargePicWindow::buildTexts()
{
    auto *panel = new QWidget;
    m_captionField = new CaptionLabel(2, panel);
    m_captionField->setObjectName(QStringLiteral("captionField"));
    QFont type = font();
    type.setPointSizeF(fontInfo().pointSizeF() * 1.1);
    type.setWeight(QFont::DemiBold);
    m_captionField->setFont(type);
    auto *label = new QVBoxLayout;
    label->setContentsMargins(0, (ButtonSize - m_captionField->minimumSizeHint().height()) / 2, 0,
                              0);
    label->addWidget(m_captionField, 1); // its first line is level with the arrows
    auto *caption = new QHBoxLayout;
    setSideMargins(*caption, Margin, Margin - IconInset);
    caption->setSpacing(2);
    caption->addLayout(label, 1);
    caption->addSpacing(12);
    caption->addWidget(makeButton(QStringLiteral("previousButton"), m_actions.previous), 0,
                       Qt::AlignTop);
    caption->addWidget(makeButton(QStringLiteral("nextButton"), m_actions.next), 0, Qt::AlignTop);
    m_picDetails->setMinimumHeight(48);
    auto *text = new QHBoxLayout;
    text->setContentsMargins(Margin, 0, Margin, 0);
    text->addWidget(m_picDetails);
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 4, 0, 8);
    column->setSpacing(6);
    column->addLayout(caption);
    column->addLayout(text, 1);
    column->addWidget(buildButtons());
    return panel;
}

QWidget *LargePicWindow::buildButtons()
{
    auto *bar = new QWidget;
    auto *row = new QHBoxLayout(bar);
    setSideMargins(*row, Margin - TextInset, Margin - IconInset);
    row->setSpacing(4);
    m_parentButton = makeButton(QStringLiteral("parentButton"), m_actions.showParent, true);
    connect(m_actions.showParent, &QAction::changed, m_parentButton, // the action has set its own
            [this] { m_parentButton->setToolTip(m_parentToolTip); });
    row->addWidget(m_parentButton);
    row->addWidget(makeButton(QStringLiteral("setDesktopBtn"), m_actions.setDesktop, true));
    row->addStretch(1);
    row->addWidget(makeButton(QStringLiteral("zoomButton"), m_actions.standardSize));
    row->addWidget(makeButton(QStringLiteral("finderButton"), m_actions.showInFinder));
    row->addSpacing(12);
    row->addWidget(makeButton(QStringLiteral("emailButton"), m_actions.email));
    row->addWidget(makeButton(QStringLiteral("facebookButton"), m_actions.facebook));
    row->addWidget(makeButton(QStringLiteral("twitterButton"), m_actions.twitter));
    row->addSpacing(12);
    row->addWidget(makeButton(QStringLiteral("deleteButton"), m_actions.deletePic));
    return bar;
}

QToolButton *LargePicWindow::makeButton(const QString &objectName, QAction *action, bool withText)
{
    auto *button = new QToolButton;
    button->setDefaultAction(action);
    button->setObjectName(objectName);
    button->setAccessibleName(action->toolTip());
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    button->setToolButtonStyle(withText ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    if (withText) { // a little apart from its icon
        button->setFixedHeight(ButtonSize);
        action->setIconText(u' ' + action->iconText());
    } else {
        button->setFixedSize(ButtonSize, ButtonSize);
    }
    return button;
}

void LargePicWindow::setStartSize()
{
    const QSize room = screen()->availableSize() * 0.92;
    resize(StartSize.boundedTo(room));
    m_splitter->setSizes({height() - StartTextHeight, StartTextHeight});
}

void LargePicWindow::setCaption(const QString &text)
{
    m_captionField->setText(text);
    m_largeImage->setAccessibleName(text);
}

void LargePicWindow::setParentIcon(const QIcon &icon) const
{
    m_actions.showParent->setIcon(icon);
}

void LargePicWindow::setEmailIcon(const QIcon &icon) const
{
    m_actions.email->setIcon(icon);
}

void LargePicWindow::setParentToolTip(const QString &toolTip)
{
    m_parentToolTip = toolTip;
    m_parentButton->setToolTip(toolTip);
}

void LargePicWindow::showParentButton(bool shown)
{
    m_actions.showParent->setVisible(shown);
    m_parentButton->setVisible(shown);
}

void LargePicWindow::enableParentButton(bool enabled) const
{
    m_actions.showParent->setEnabled(enabled && m_commands.showParent);
}

void LargePicWindow::enableSharing(bool enabled) const
{
    m_actions.deletePic->setEnabled(enabled && m_commands.deletePic);
    m_actions.email->setEnabled(enabled && m_commands.shareEmail);
    m_actions.facebook->setEnabled(enabled && m_commands.shareFacebook);
    m_actions.twitter->setEnabled(enabled && m_commands.shareTwitter);
}

void LargePicWindow::showCantShow(bool shown)
{
    m_cantShowField->setVisible(shown);
}

void LargePicWindow::showProgress(std::optional<float> percent, const QString &text)
{
    m_progress->setRange(0, percent ? 1000 : 0);
    if (percent)
        m_progress->setValue(static_cast<int>(*percent * 10));
    m_progress->show();
    m_progressField->setText(text);
    m_progressField->setVisible(!text.isEmpty());
}

void LargePicWindow::showNotice(const QString &text)
{
    m_progress->hide();
    m_progressField->setText(text);
    m_progressField->show();
}

void LargePicWindow::hideProgress()
{
    m_progress->hide();
    m_progressField->hide();
}

void LargePicWindow::bringToFront()
{
    if (!isVisible() && !m_place.isEmpty())
        restoreGeometry(m_place);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void LargePicWindow::toggleStandardFrame()
{
    if (isMaximized() || isFullScreen())
        showNormal();
    const QRect frame = frameGeometry();
    const QSize border = frame.size() - size();
    const QRect room = screen()->availableGeometry();
    const QRect standard = standardFrame(m_largeImage->pictureSize(), frame,
                                         minimumSizeHint() + border, room.size(), room);
    if (m_userFrame && frame.size() == standard.size()) {
        applyFrame(*m_userFrame);
        m_userFrame.reset();
        return;
    }
    m_userFrame = frame;
    applyFrame(ontoScreen(standard, room));
    const int picture = m_largeImage->pictureSize().height() + 2 * LargeImageView::EdgeMargin;
    const int rest = m_splitter->widget(1)->minimumSizeHint().height() + m_splitter->handleWidth();
    const int top = std::min(picture, height() - rest);
    m_splitter->setSizes({top, height() - top - m_splitter->handleWidth()});
    m_largeImage->zoomToFit();
}

void LargePicWindow::leave()
{
    if (isFullScreen())
        setWindowState(windowState() & ~Qt::WindowFullScreen);
    else
        close();
}

void LargePicWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_picDetails->followPalette();
    if (event->type() == QEvent::WindowStateChange)
        m_splitter->widget(1)->setVisible(!isFullScreen()); // nothing but the picture
}

void LargePicWindow::applyFrame(const QRect &frame)
{
    const QPoint inset = geometry().topLeft() - frameGeometry().topLeft();
    const QSize border = frameGeometry().size() - size();
    setGeometry(QRect(frame.topLeft() + inset, frame.size() - border));
}

void LargePicWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous()) // only minimised
        return;
    m_place = saveGeometry();
    if (onClosed)
        onClosed();
}

void LargePicWindow::contextMenuEvent(QContextMenuEvent *event)
{
    m_actions.makeMenu(this)->popup(event->globalPos());
}

} // namespace moravel
