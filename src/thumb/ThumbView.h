// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QString>

#include <functional>

namespace moravel {

class ThumbView;

/// The application's own pictures that a cell can show.
struct ThumbImages
{
    QImage blank; ///< No picture yet.
    QImage trashcan; ///< Picture deleted.
    QImage prefs; ///< Desktop that the program did not set.
};

/// What a cell forwards to the controller. A command that is not there is not offered: its button stays
/// hidden and its gesture does nothing.
struct ThumbCommands
{
    std::function<void(ThumbView &)> setAsDesktop;
    std::function<void(ThumbView &)> showLargePic;
    std::function<void(ThumbView &)> showInFinder;
    std::function<void(ThumbView &)> refreshDataForThumb;
    std::function<void(ThumbView &)> refreshCaption;
    std::function<void(ThumbView &)> deletePic;
    std::function<void(ThumbView &)> newDesktop;
    std::function<void(ThumbView &)> previousDesktop;
};

/// Tool tips of the controls of a cell; empty when hidden.
struct ThumbToolTips
{
    QString deleteBtn;
    QString newDesktopBtn;
    QString prevDesktopBtn;
    QString infoButton;
    QString refreshButton;
    QString clicker;
};

/// Which buttons of a cell are shown.
struct ThumbButtons
{
    bool deleteBtn = true;
    bool newDesktopBtn = true;
    bool prevDesktopBtn = true;
    bool infoButton = true;
    bool refreshButton = true;
    bool operator==(const ThumbButtons &) const = default;
};

/// The state of one cell of the main window: the picture of one source on one date. It shows what it is
/// given (a widget follows changed()) and forwards what the user does. Main thread only.
class ThumbView : public QObject
{
    Q_OBJECT

public:
    static constexpr int GridTag = 1000; ///< Grid cells carry this plus their index.
    static constexpr int DesktopTag = 99;
    static constexpr int BrowserTag = 98;

    /// What the caption label says while the cell waits for its picture's data.
    static QString lookingText();

    /// How the last search for this cell's picture stands.
    enum class Search {
        None, ///< There is none, or it found what it looked for.
        Looking, ///< A request is waiting or under way.
        Nothing, ///< Answered for every day that was tried: there is no picture.
        Failed ///< The last request was not answered.
    };

    /// Marks a picture that the user has deleted, in place of a thumb link.
    static QString deletedMark() { return QStringLiteral("DELETED"); }

    /// @p images and @p commands must outlive the cell.
    ThumbView(int tag, const ThumbImages &images, const ThumbCommands &commands,
              const QDateTime &created);

    // Display ------------------------------------------------------------------------------------

    void showSource(const QString &longName, const QString &shortName);
    void showDate(const QString &localDate);
    /// Shows a caption in readable form (entities, underscores, all capitals).
    void showCaption(const QString &caption);
    /// Shows @p image, ends the wait, and takes @p url as the thumb link.
    void showThumbImage(const QImage &image, const QString &url);
    /// The waiting state.
    void blankImage();
    /// The current-desktop cell's state for a desktop that the program did not set.
    void prefsImage();
    void clearImage();
    /// Sets the caption label alone; the stored caption stays.
    void setCaptionField(const QString &text);
    void startSpinner();
    void showToolTips();
    void hideToolTips();
    void setClickerToolTip(const QString &text);
    void setHidden(bool hidden);
    void setButtons(const ThumbButtons &buttons);

    // User actions -------------------------------------------------------------------------------

    void setThumbAsDesktop(int clickCount);
    void refreshCaption(int clickCount);
    void showThumbLarge();
    void showThumbInFinder();
    void refreshData();

    // Text summaries -----------------------------------------------------------------------------

    QString description() const;
    QString debugInfo() const;

    // Fields -------------------------------------------------------------------------------------

    int tag() const { return m_tag; }

    QString sourceField() const { return m_longSourceName; }

    QString dateField() const { return m_dateString; }

    QString captionField() const { return m_captionField; }

    QImage imageView() const { return m_image; }

    bool isSpinning() const { return m_spinning; }

    bool isHidden() const { return m_hidden; }

    ThumbButtons buttons() const { return m_buttons; }

    const ThumbToolTips &toolTips() const { return m_toolTips; }

    const ThumbCommands &commands() const { return m_commands; }

    const ThumbImages &images() const { return m_images; }

    QString shortSourceName() const { return m_shortSourceName; }

    QString longSourceName() const { return m_longSourceName; }

    QString dateString() const { return m_dateString; }

    QString captionString() const { return m_captionString; }

    QString infoString() const { return m_infoString; }

    QString thumbPath() const { return m_thumbPath; }

    QString picPath() const { return m_picPath; }

    QString parentPath() const { return m_parentPath; }

    bool usedAsDesktop() const { return m_usedAsDesktop; }

    QDateTime startCheckDate() const { return m_startCheckDate; }

    void setDateString(const QString &date) { m_dateString = date; }

    void setInfoString(const QString &info) { m_infoString = info; }

    void setThumbPath(const QString &path);

    void setPicPath(const QString &path) { m_picPath = path; }

    void setParentPath(const QString &path) { m_parentPath = path; }

    void setUsedAsDesktop(bool used) { m_usedAsDesktop = used; }

    void setStartCheckDate(const QDateTime &date) { m_startCheckDate = date; }

    Search search() const { return m_search; }

    void setSearch(Search search);

    /// The day that the cell should show; dateString() is the one that it does show.
    QString wantedDate() const { return m_wantedDate; }

    void setWantedDate(const QString &localDate);

Q_SIGNALS:
    /// Something that is displayed is another one.
    void changed();

private:
    const ThumbImages &m_images;
    const ThumbCommands &m_commands;
    int m_tag;
    QString m_shortSourceName;
    QString m_longSourceName;
    QString m_dateString;
    QString m_wantedDate;
    QString m_captionString;
    QString m_captionField;
    QString m_infoString;
    QString m_thumbPath;
    QString m_picPath;
    QString m_parentPath;
    QDateTime m_startCheckDate;
    QImage m_image;
    ThumbButtons m_buttons;
    ThumbToolTips m_toolTips;
    Search m_search = Search::None;
    bool m_usedAsDesktop = false;
    bool m_spinning = false;
    bool m_hidden = false;
};

} // namespace moravel
