// SPDX-License-Identifier: MIT
// What the grid shows while it has no cells to show.
#pragma once

#include <QWidget>

#include <functional>

class QVBoxLayout;

namespace moravel {

enum class GridState {
    Loading, ///< The sources are not known yet.
    NoService, ///< No source is known: the service does not answer.
    Welcome, ///< First start: no selection has ever been saved.
    NothingSelected,
    Cells
};

/// Tells what the grid shows. @p saved: a selection has been saved at some time.
GridState gridState(bool built, int sources, bool saved, int visibleThumbs);

/// Covers the whole grid and keeps its content in the middle.
class GridPanel : public QWidget
{
    Q_OBJECT

public:
    explicit GridPanel(const QString &objectName);

protected:
    QVBoxLayout *content() const { return m_content; }

private:
    QVBoxLayout *m_content;
};

GridPanel *makeLoadingPanel();
/// @p retry asks the service again; without it no button is offered.
GridPanel *makeNoServicePanel(const std::function<void()> &retry);
GridPanel *makeNothingSelectedPanel();

} // namespace moravel
