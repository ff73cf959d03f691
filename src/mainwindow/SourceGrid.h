// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"
#include "mainwindow/GridPanel.h"
#include "platform/MainLoop.h"
#include "thumb/ThumbCells.h"

#include <QAction>
#include <QMap>

#include <functional>
#include <optional>

namespace moravel {

class MainWindow;

/// What the grid needs of others; an empty port is skipped.
struct SourceGridPorts
{
    /// Sets currentThumb to none and thumbIndex to 0, and runs loadNextThumb after so many seconds.
    std::function<void(double seconds)> startPass;
    /// Runs rotateDesktop after so many seconds.
    std::function<void(double seconds)> rotateDesktop;
    /// Adds a source to the browser's source filter.
    std::function<void(const QString &longName)> addSourcePopupItem;
    /// The user has chosen the first sources; the pass that has gone by meanwhile had none to show.
    std::function<void()> sourcesChosen;
    /// Asks the service for the sources again; offered while none is known.
    std::function<void()> retry;
};

/// The sources with their switches and cells: builds them once the sources are known, lays the grid out,
/// and switches sources on and off.
class SourceGrid : public QObject
{
    Q_OBJECT

public:
    /// Shows the waiting state until the grid is built. All references must outlive this object.
    SourceGrid(ThumbCells &cells, Preferences &preferences, MainLoop &loop, MainWindow &window,
               SourceGridPorts ports);

    /// Builds a switch and a cell for each source and starts the first loading.
    /// @param sourceNames short name to long name. May be repeated as long as no source was known.
    void drawCheckboxesAndThumbs(const QMap<QString, QString> &sourceNames);

    /// Lays the visible cells out; does nothing while the number per row is that of the last layout.
    void repositionThumbs();
    /// The grid has another size.
    void windowDidResize();
    /// Switches the source of that tag on or off and saves the selection.
    void changedSource(int tag);

    /// Long names of the sources that are on, in grid order; one empty string when none is.
    QStringList selectedSources() const;
    QStringList allSources() const;

    /// Switches the named sources on, as the welcome panel does; "all" as the only name means every one.
    /// Returns the names that are no known source.
    QStringList switchOn(const QStringList &longNames);
    void switchAll(bool on);

    const QList<QAction *> &sourceChecks() const { return m_sourceChecks; }

    int thumbsPerRow() const { return m_thumbsPerRow; } ///< 0 forces the next layout.

    int numberOfRows() const { return m_numberOfRows; }

private:
    void buildSource(int index, const QString &shortName, const QString &longName, bool on);
    QAction *createMenuItemWithTitle(const QString &longName, int index);
    ThumbView &createThumbViewWithIndex(int index, const QString &longName,
                                        const QString &shortName);
    void addSwitchAllItems();
    void growWindow();
    void layoutAgain();
    void showPanel();
    QWidget *makePanel(GridState state);
    QStringList longNames(bool onlySelected) const;

    ThumbCells &m_cells;
    Preferences &m_preferences;
    MainLoop &m_loop;
    MainWindow &m_window;
    SourceGridPorts m_ports;
    QList<QAction *> m_sourceChecks;
    int m_thumbsPerRow = 0;
    int m_numberOfRows = 0;
    bool m_built = false;
    std::optional<GridState> m_shownState;
};

} // namespace moravel
