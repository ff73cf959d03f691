// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/CaptionOverlay.h"
#include "desktop/DesktopSetter.h"
#include "desktop/DesktopWatcher.h"
#include "desktop/DockMenu.h"
#include "desktop/Rotation.h"

namespace moravel {

/// Everything about the desktop picture: builds the collaborators, ties them, and takes the user's
/// commands.
class DesktopManagement
{
public:
    explicit DesktopManagement(const DesktopContext &context);
    ~DesktopManagement();

    /// Once, after the grid is built: looks at the desktop and starts the clocks. Before it, once the
    /// sources are known, comes rotation().markFirstRotationDue().
    void start();

    DesktopSetter &setter() { return m_setter; }

    const DesktopSetter &setter() const { return m_setter; }

    Rotation &rotation() { return m_rotation; }

    QString currentDesktopPath() const { return m_setter.currentDesktopPath(); }

    // Commands -----------------------------------------------------------------------------------

    /// Makes a file that the user chose the desktop.
    void setToChosen(const QString &path);
    /// Makes the picture of the large picture window the desktop; asks first when it is huge.
    void setDesktop(const QString &currentLargePicPath);
    /// Makes a picture that the user chose the desktop; it stays for a whole interval.
    void setChosenDesktop(const QString &path);
    /// Makes the picture of a cell the desktop. The second click on a deleted one restores it.
    void setAsDesktop(ThumbView &cell, int clickCount);
    void showInFinder(ThumbView &cell);
    /// The sizing menu's command; shows from the next change on.
    void setSizing(int sizingTag);
    /// Opens the settings of the running desktop; alerts when that fails.
    void showDesktopPrefs();
    void showDesktopInfo();
    /// Writes the texts of a cell onto a copy of a picture and makes that the desktop.
    void addTextToDesktop(const QString &path, const ThumbView &currentThumb);

    QList<DockMenuItem> applicationDockMenu() const;

    /// Tells whether a command of the menu makes sense now.
    bool offers(DockCommand command) const { return isOffered(command, dockMenuState()); }

    void run(DockCommand command);

private:
    DockMenuState dockMenuState() const;

    DesktopContext m_context;
    DesktopSetter m_setter;
    DockTile m_dockTile;
    DesktopCell m_cell;
    DesktopWatcher m_watcher;
    Rotation m_rotation;
    CaptionOverlay m_overlay;
    std::shared_ptr<int> m_alive =
        std::make_shared<int>(); ///< Late answers look whether we are there.
};

} // namespace moravel
