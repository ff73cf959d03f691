// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <memory>
#include <vector>

namespace moravel {

/// All cells: those of the grid in grid order, the current-desktop cell of the side bar, and the browser
/// cell that is never on screen. Cells live as long as this object.
class ThumbCells
{
public:
    ThumbCells(ThumbImages images, ThumbCommands commands);

    /// Makes the two special cells; @p now is their creation time.
    void createSpecialCells(const QDateTime &now);

    /// Appends a grid cell with the next tag.
    ThumbView &addThumbView(const QString &longName, const QString &shortName,
                            const QDateTime &now);

    const std::vector<std::unique_ptr<ThumbView>> &thumbViews() const { return m_thumbViews; }

    int count() const { return static_cast<int>(m_thumbViews.size()); }

    ThumbView &at(int index) const { return *m_thumbViews.at(static_cast<std::size_t>(index)); }

    ThumbView &desktopThumb() const { return *m_desktopThumb; }

    ThumbView &browserThumb() const { return *m_browserThumb; }

    const ThumbImages &images() const { return m_images; }

    /// Number of grid cells that are not hidden.
    int visibleThumbs() const;

    /// Returns the current-desktop cell for its tag, else the grid cell of that tag, or null.
    ThumbView *thumbForTag(int tag) const;
    /// Returns the first grid cell whose short or long source name is @p name, or null.
    ThumbView *thumbForSource(const QString &name) const;
    ThumbView *thumbForThumbLink(const QString &link) const;
    /// Returns the long source name of the first grid cell with that picture link; null if there is none.
    QString thumbSourceForPic(const QString &link) const;
    bool currentDesktopShowingInThumbs() const;

private:
    template <typename Test>
    ThumbView *first(Test test) const;

    ThumbImages m_images;
    ThumbCommands m_commands;
    std::vector<std::unique_ptr<ThumbView>> m_thumbViews;
    std::unique_ptr<ThumbView> m_desktopThumb;
    std::unique_ptr<ThumbView> m_browserThumb;
};

} // namespace moravel
