// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Defaults.h"

#include <QByteArray>
#include <QObject>

#include <functional>

namespace moravel {

/// The user's choices between runs, read from and written to the defaults store, with the fields and
/// menu check marks that mirror them. Each write sets one key at once; nothing else is cached.
class Preferences : public QObject
{
    Q_OBJECT

public:
    /// Tags of the two option items of the Desktop menu.
    static constexpr int AllSpacesTag = 2001;
    static constexpr int AllScreensTag = 2002;

    explicit Preferences(Defaults &defaults, QObject *parent = nullptr);

    void saveSourcePrefs(const QStringList &selectedSources);
    /// Returns the stored selection of long source names; nothing when none was ever saved.
    std::optional<QStringList> readSourcePrefs() const;

    void saveZoomPrefs(double zoom);
    float readZoomPrefs() const; ///< 0.0 when absent.

    /// The rotation menu's command: stores the interval, checks its item, and restarts the schedule
    /// through onFrequencyChanged.
    void setChangeFrequency(int minutes);
    void readChangeFrequency();
    /// The sizing menu's command.
    void setDesktopSize(int sizingTag);
    void readSizeSetting();
    void setDesktopOptions(int optionTag);
    void readDesktopOptions();

    bool readHideTooltips() const;
    void saveHideTooltips(bool hide);

    /// Tells whether the user has been told what sharing on Facebook does.
    bool readFacebook() const;
    void saveFacebook(bool told);

    /// Tells whether nothing is to be done unasked where it would disturb or cost (true when absent).
    bool readQuiet() const;
    void saveQuiet(bool quiet);

    /// Most that the full pictures may take on the disk, in GB (2^30 bytes); 0 for no limit.
    int readDiskLimit() const;
    void saveDiskLimit(int gigabytes);

    bool readHideSideBar() const;
    void saveHideSideBar(bool hide);

    /// Where a window stood, as the toolkit describes it; empty when it never stood anywhere.
    QByteArray readWindowPlace(const QString &window) const;
    void saveWindowPlace(const QString &window, const QByteArray &place);

    /// The windows beside the main one that were open last, each as it describes itself.
    QStringList readOpenWindows() const;
    void saveOpenWindows(const QStringList &windows);

    /// Sets the mirrored interval without storing it; the one-hour hold does so for a moment.
    void setRotateFrequency(int minutes) { m_rotateFrequency = minutes; }

    int rotateFrequency() const { return m_rotateFrequency; } ///< Minutes; below 1 means never.

    int desktopSizeSetting() const { return m_desktopSizeSetting; }

    bool doSetAllSpaces() const { return m_doSetAllSpaces; }

    bool doSetAllScreens() const { return m_doSetAllScreens; }

    /// Called after the user chose another interval (the desktop's schedule starts anew).
    std::function<void()> onFrequencyChanged;

Q_SIGNALS:
    /// The check marks of the Desktop menu follow the fields above.
    void menuStateChanged();

private:
    Defaults &m_defaults;
    int m_rotateFrequency = 0;
    int m_desktopSizeSetting = 1000;
    bool m_doSetAllSpaces = false;
    bool m_doSetAllScreens = false;
};

} // namespace moravel
