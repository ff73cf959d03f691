// SPDX-License-Identifier: MIT
#include "mainwindow/SourceGrid.h"

#include "mainwindow/CheckItem.h"
#include "mainwindow/GridLayout.h"
#include "mainwindow/GridView.h"
#include "mainwindow/MainView.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/WelcomePanel.h"

#include <QMenu>

#include <algorithm>

namespace moravel {

namespace {

constexpr int LeastWindowHeight = 625;
constexpr double FirstPassDelay = 0.5; // seconds
constexpr double FirstRotationDelay = 30;

} // namespace

SourceGrid::SourceGrid(ThumbCells &cells, Preferences &preferences, MainLoop &loop,
                       MainWindow &window, SourceGridPorts ports)
    : m_cells(cells)
    , m_preferences(preferences)
    , m_loop(loop)
    , m_window(window)
    , m_ports(std::move(ports))
{
    connect(&m_window.grid(), &GridView::resized, this, &SourceGrid::windowDidResize);
    showPanel();
}

void SourceGrid::drawCheckboxesAndThumbs(const QMap<QString, QString> &sourceNames)
{
    if (!m_sourceChecks.isEmpty())
        return;
    const QStringList saved = m_preferences.readSourcePrefs().value_or(QStringList());
    if (!sourceNames.isEmpty())
        addSwitchAllItems();
    int index = 0;
    // The map's order, that of the short names' code units, is the order of the grid.
    for (auto source = sourceNames.begin(); source != sourceNames.end(); ++source)
        buildSource(index++, source.key(), source.value(), saved.contains(source.value()));
    growWindow();
    m_built = true;
    layoutAgain();
    showPanel();
    if (m_ports.startPass)
        m_ports.startPass(FirstPassDelay);
    if (m_preferences.rotateFrequency() >= 1 && m_ports.rotateDesktop)
        m_ports.rotateDesktop(FirstRotationDelay);
}

void SourceGrid::buildSource(int index, const QString &shortName, const QString &longName, bool on)
{
    m_sourceChecks.append(createMenuItemWithTitle(longName, index));
    ThumbView &cell = createThumbViewWithIndex(index, longName, shortName);
    m_sourceChecks.last()->setChecked(on);
    cell.setHidden(!on);
}

QAction *SourceGrid::createMenuItemWithTitle(const QString &longName, int index)
{
    const int tag = ThumbView::GridTag + index;
    QAction *item = makeCheckItem(menuTitle(longName), this, [this, tag] { changedSource(tag); });
    item->setProperty("tag", tag);
    item->setData(longName);
    m_window.sourcesMenu().addAction(item);
    if (m_ports.addSourcePopupItem)
        m_ports.addSourcePopupItem(longName);
    return item;
}

ThumbView &SourceGrid::createThumbViewWithIndex([[maybe_unused]] int index, const QString &longName,
                                                const QString &shortName)
{
    ThumbView &cell = m_cells.addThumbView(longName, shortName, m_loop.now());
    Q_ASSERT(cell.tag() == ThumbView::GridTag + index);
    m_window.grid().addCell(cell);
    return cell;
}

void SourceGrid::addSwitchAllItems()
{
    QMenu &menu = m_window.sourcesMenu();
    connect(menu.addAction(tr("Switch &All On")), &QAction::triggered, this,
            [this] { switchAll(true); });
    connect(menu.addAction(tr("Switch All &Off")), &QAction::triggered, this,
            [this] { switchAll(false); });
    menu.addSeparator();
}

void SourceGrid::growWindow()
{
    m_window.setMinimumSize(m_window.minimumWidth(), LeastWindowHeight);
    if (m_window.height() < LeastWindowHeight)
        m_window.resize(m_window.width(), LeastWindowHeight);
}

void SourceGrid::repositionThumbs()
{
    GridView &view = m_window.grid();
    const int perRow = grid::thumbsPerRow(view.documentWidth());
    if (perRow == m_thumbsPerRow || m_cells.count() == 0)
        return;
    std::vector<bool> shown;
    for (const auto &cell : m_cells.thumbViews())
        shown.push_back(!cell->isHidden());
    const grid::Plan plan = grid::plan(perRow, m_window.mainView().height(), shown);
    view.setDocumentHeight(plan.documentHeight);
    for (std::size_t i = 0; i < plan.origins.size(); ++i) {
        const auto &origin = plan.origins[i];
        if (!origin)
            continue;
        view.place(i, {origin->x(), grid::topOf(origin->y(), plan.documentHeight)});
        ThumbView &cell = *m_cells.thumbViews()[i];
        if (shown[i] && cell.thumbPath().isEmpty())
            cell.startSpinner();
    }
    m_thumbsPerRow = perRow;
    m_numberOfRows = plan.rows;
}

void SourceGrid::windowDidResize()
{
    repositionThumbs();
    m_window.grid().setDocumentHeight(
        grid::heightAfterResize(m_window.mainView().height(), m_numberOfRows));
}

void SourceGrid::layoutAgain()
{
    m_thumbsPerRow = 0;
    repositionThumbs();
}

void SourceGrid::changedSource(int tag)
{
    const auto item =
        std::find_if(m_sourceChecks.begin(), m_sourceChecks.end(),
                     [tag](auto *check) { return check->property("tag").toInt() == tag; });
    if (item == m_sourceChecks.end())
        return;
    const bool wasOn = (*item)->isChecked();
    (*item)->setChecked(!wasOn);
    ThumbView *cell = m_cells.thumbForTag(tag);
    if (cell)
        cell->setHidden(wasOn);
    if (cell)
        layoutAgain();
    m_preferences.saveSourcePrefs(selectedSources());
    showPanel();
}

QStringList SourceGrid::longNames(bool onlySelected) const
{
    QString names;
    for (const QAction *check : m_sourceChecks) {
        if (check->isChecked() || !onlySelected)
            names += check->data().toString() + u'\n';
    }
    return names.trimmed().split(u'\n');
}

QStringList SourceGrid::selectedSources() const
{
    return longNames(true);
}

QStringList SourceGrid::allSources() const
{
    return longNames(false);
}

QStringList SourceGrid::switchOn(const QStringList &longNames)
{
    if (longNames == QStringList(QStringLiteral("all"))) {
        switchAll(true);
        return {};
    }
    QStringList unknown = longNames;
    for (const QAction *check : std::as_const(m_sourceChecks)) {
        const QString name = check->data().toString();
        unknown.removeAll(name);
        if (!check->isChecked() && longNames.contains(name))
            changedSource(check->property("tag").toInt());
    }
    return unknown;
}

void SourceGrid::switchAll(bool on)
{
    for (const QAction *check : std::as_const(m_sourceChecks)) {
        if (check->isChecked() != on)
            changedSource(check->property("tag").toInt());
    }
}

void SourceGrid::showPanel()
{
    const GridState state =
        gridState(m_built, m_cells.count(), m_preferences.readSourcePrefs().has_value(),
                  m_cells.visibleThumbs());
    if (m_shownState == state && state != GridState::NoService)
        return;
    m_shownState = state;
    m_window.grid().setPanel(makePanel(state));
}

QWidget *SourceGrid::makePanel(GridState state)
{
    switch (state) {
    case GridState::Loading:
        return makeLoadingPanel();
    case GridState::NoService:
        return makeNoServicePanel(m_ports.retry);
    case GridState::NothingSelected:
        return makeNothingSelectedPanel();
    case GridState::Cells:
        return nullptr;
    case GridState::Welcome:
        break;
    }
    QStringList names;
    for (const QAction *check : m_sourceChecks)
        names += check->data().toString();
    auto *panel = new WelcomePanel(names);
    connect(panel, &WelcomePanel::sourcesChosen, this, [this](const QList<int> &tags) {
        for (const int tag : tags)
            changedSource(tag);
        if (m_ports.sourcesChosen)
            m_ports.sourcesChosen();
    });
    return panel;
}

} // namespace moravel
