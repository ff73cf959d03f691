// SPDX-License-Identifier: MIT
#pragma once

#include "app/Worker.h"
#include "base/Preferences.h"
#include "mainwindow/MainWindow.h"
#include "service/ServiceContext.h"
#include "store/Collection.h"
#include "store/LegacyCaptions.h"
#include "store/NameList.h"

namespace moravel {

/// What letting pictures go needs of its neighbours.
struct DiskPorts
{
    /// Paths of the pictures that are being looked at: on the desktop and large.
    std::function<QStringList()> shownPictures;
    /// Returns the file of a cell's picture, or "" after starting its download.
    std::function<QString(ThumbView &)> fetch;
    /// Makes a picture file the desktop, as the user wants.
    std::function<void(const QString &path)> setDesktop;
};

/// Shows what the collection takes, and keeps it below the user's limit: the pictures fetched longest ago
/// go to the Trash. They are remembered, so that the hourly pass leaves them alone; opening one, or setting
/// it as desktop, fetches it again.
class DiskSide : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive this object.
    DiskSide(const ServiceContext &context, Preferences &preferences, LegacyCaptions &legacy,
             DiskPorts ports);

    /// Adds the command to the View menu.
    void attachWindow(MainWindow &window);

    /// The program has started: looks after the limit in a while.
    void start() { tidySoon(); }

    bool isLetGo(const QString &path) const;

    bool isLetGo(const ThumbView &cell) const { return isLetGo(pathOf(cell)); }

    /// A picture has come, and is none that went any more.
    void pictureArrived(const QString &path);

    /// The user has set a picture as desktop: it never goes.
    void keep(const QString &path);

    /// Fetches the picture of a cell that the user wants as desktop, and sets it when it is there.
    void fetchForDesktop(ThumbView &cell);

    /// Lets the next pass fetch the picture of a cell again.
    void wantBack(const ThumbView &cell);

private:
    QString pathOf(const ThumbView &cell) const;
    QString nameIn(const QString &path) const;
    void look(std::function<void(const Collection &)> done);
    QSet<QString> staying(const std::vector<FileEntry> &files) const;
    void showSheet();
    void tidySoon();
    void tidy();
    void letGo(std::vector<SparePicture> pictures);

    ServiceContext m_context;
    Preferences &m_preferences;
    LegacyCaptions &m_legacy;
    DiskPorts m_ports;
    NameList m_desktops; ///< Set by the user, at any time.
    NameList m_letGo;
    QString m_forDesktop; ///< Path of the picture that becomes the desktop when it has come.
    bool m_isTidying = false; ///< Pictures are on their way to the Trash.
    MainWindow *m_window = nullptr;
    DelayedCallHandle m_soon;
    Worker m_worker; ///< Last: its thread uses the others.
};

} // namespace moravel
