// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/LargeImageView.h"
#include "mainwindow/LargePicCommands.h"
#include "mainwindow/PicDetails.h"

#include <QWidget>

#include <optional>

class QLabel;
class QProgressBar;
class QSplitter;
class QToolButton;

namespace moravel {

class CaptionLabel;

/// The large picture window: one picture, its caption and text, and commands on it. It shows what it is
/// told and decides nothing. Closing hides it; it opens again where it was.
class LargePicWindow : public QWidget
{
    Q_OBJECT

public:
    LargePicWindow(Images &images, LargePicCommands commands);

    LargeImageView &largeImage() const { return *m_largeImage; }

    PicDetails &picDetails() const { return *m_picDetails; }

    void setCaption(const QString &text);
    void setParentIcon(const QIcon &icon) const;
    void setEmailIcon(const QIcon &icon) const;
    void setParentToolTip(const QString &toolTip);
    void showParentButton(bool shown);
    void enableParentButton(bool enabled) const;
    /// Enables the buttons that are only for pictures of a source: delete, e-mail, Facebook, Twitter.
    void enableSharing(bool enabled) const;
    void showCantShow(bool shown);
    /// Per cent of the bytes; nothing means an unknown length, without a text.
    void showProgress(std::optional<float> percent, const QString &text);
    /// Shows a text in place of the progress, until that is hidden.
    void showNotice(const QString &text);
    void hideProgress();

    void bringToFront();
    /// Gives the window the frame that shows the picture in its own size, or the frame before that.
    void toggleStandardFrame();

    /// Called when the window was closed.
    std::function<void()> onClosed;

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void buildNotices();
    QWidget *buildTexts();
    QWidget *buildButtons();
    QToolButton *makeButton(const QString &objectName, QAction *action, bool withText = false);
    void setStartSize();
    void applyFrame(const QRect &frame);
    void leave();

    LargePicCommands m_commands;
    LargeImageView *m_largeImage;
    PicDetails *m_picDetails;
    LargePicActions m_actions;
    QSplitter *m_splitter;
    CaptionLabel *m_captionField = nullptr;
    QLabel *m_cantShowField = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_progressField = nullptr;
    QToolButton *m_parentButton = nullptr;
    QString m_parentToolTip;
    QByteArray m_place; ///< Where it was when it was closed.
    std::optional<QRect> m_userFrame; ///< Before it took the standard frame.
};

} // namespace moravel
