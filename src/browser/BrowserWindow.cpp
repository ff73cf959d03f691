// SPDX-License-Identifier: MIT
#include "browser/BrowserWindow.h"

#include "browser/BrowserModel.h"
#include "browser/ImageBrowserView.h"
#include "browser/ImageDelegate.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace moravel {

namespace {

constexpr int SliderSteps = 1000; ///< For a zoom of 1.
constexpr int ZoomStep = SliderSteps / 20;
constexpr int Margin = 8;

QFrame *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFixedHeight(1);
    line->setBackgroundRole(QPalette::Mid);
    line->setAutoFillBackground(true);
    return line;
}

int sliderValue(float zoom)
{
    const double within = std::isnan(zoom) ? double(UsualZoom) : std::clamp(double(zoom), 0.0, 1.0);
    return static_cast<int>(std::lround(within * SliderSteps));
}

} // namespace

BrowserWindow::BrowserWindow(BrowserModel &model, const BrowserLook &look,
                             const BrowserCommands &commands)
    : m_look(look), m_imageBrowser(new ImageBrowserView(new ImageDelegate(look), this))
{
    setObjectName(QStringLiteral("browserWindow"));
    setWindowTitle(tr("Picture Browser"));
    setAttribute(Qt::WA_QuitOnClose, false);
    m_imageBrowser->setObjectName(QStringLiteral("imageBrowser"));
    m_imageBrowser->viewport()->setObjectName(QStringLiteral("browserScroll"));
    m_imageBrowser->setModel(&model); // before the name, with which a screen reader comes to look
    m_imageBrowser->setAccessibleName(tr("Pictures"));
    m_menu = new QMenu(m_imageBrowser);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeHeader());
    rows->addWidget(makeLine(this));
    rows->addWidget(m_imageBrowser, 1);
    rows->addWidget(makeLine(this));
    rows->addWidget(makeFooter());
    makeCommands(commands);
    addZoomKeys();
    tieImageBrowser();
    setTabOrder(m_searchField, m_imageBrowser);
    setTabOrder(m_imageBrowser, m_zoomSlider);
    setMinimumSize(420, 320);
    resize(1040, 720);
    followSelection();
}

QWidget *BrowserWindow::makeHeader()
{
    auto *header = new QWidget(this);
    auto *columns = new QHBoxLayout(header);
    columns->setContentsMargins(Margin, 5, Margin, 5);
    m_toolBar = new QToolBar(header);
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->setIconSize({16, 16});
    m_toolBar->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_sourcePopup = new QComboBox(header);
    m_sourcePopup->setObjectName(QStringLiteral("sourcePopup"));
    m_sourcePopup->setAccessibleName(tr("Source"));
    m_sourcePopup->setToolTip(tr("Show the pictures of one source only"));
    m_sourcePopup->addItem(tr("Show All"));
    m_sourcePopup->setMaximumWidth(220);
    m_sourcePopup->setMaxVisibleItems(20);
    connect(m_sourcePopup, &QComboBox::currentIndexChanged, this, &BrowserWindow::sourceInBrowser);
    m_searchField = new QLineEdit(header);
    m_searchField->setObjectName(QStringLiteral("searchField"));
    m_searchField->setAccessibleName(tr("Search captions"));
    m_searchField->setPlaceholderText(tr("Search captions"));
    m_searchField->setFixedWidth(200);
    m_searchField->installEventFilter(this);
    addSearchIcons();
    connect(m_searchField, &QLineEdit::textChanged, this, &BrowserWindow::searchInBrowser);
    columns->addWidget(m_toolBar, 1);
    columns->addWidget(m_sourcePopup);
    columns->addWidget(m_searchField);
    return header;
}

/// The field's own button for clearing searches the desktop's icon themes: 6 ms, most of what the window takes.
void BrowserWindow::addSearchIcons()
{
    if (!m_look.icon)
        return;
    m_searchField->addAction(m_look.icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    auto *clear =
        m_searchField->addAction(m_look.icon(QStringLiteral("stop")), QLineEdit::TrailingPosition);
    clear->setObjectName(QStringLiteral("clearSearch"));
    clear->setToolTip(tr("Clear the search"));
    clear->setVisible(false);
    connect(clear, &QAction::triggered, m_searchField, &QLineEdit::clear);
    connect(m_searchField, &QLineEdit::textChanged, clear,
            [clear](const QString &text) { clear->setVisible(!text.isEmpty()); });
    for (auto *button : m_searchField->findChildren<QToolButton *>())
        button->setAccessibleName(
            button->defaultAction() == clear ? clear->toolTip() : m_searchField->accessibleName());
}

QWidget *BrowserWindow::makeFooter()
{
    auto *footer = new QWidget(this);
    auto *columns = new QHBoxLayout(footer);
    columns->setContentsMargins(Margin + 4, 4, Margin + 4, 4);
    m_pictureCount = new QLabel(footer);
    m_pictureCount->setObjectName(QStringLiteral("pictureCount"));
    m_pictureCount->setTextFormat(Qt::PlainText);
    m_zoomSlider = new QSlider(Qt::Horizontal, footer);
    m_zoomSlider->setObjectName(QStringLiteral("zoomSlider"));
    m_zoomSlider->setAccessibleName(tr("Picture size"));
    m_zoomSlider->setToolTip(tr("Picture size"));
    m_zoomSlider->setRange(0, SliderSteps);
    m_zoomSlider->setSingleStep(ZoomStep);
    m_zoomSlider->setPageStep(4 * ZoomStep);
    m_zoomSlider->setFixedWidth(160);
    connect(m_zoomSlider, &QSlider::valueChanged, this, [this](int value) {
        Q_EMIT zoomSliderDidChange(static_cast<float>(value) / SliderSteps);
    });
    columns->addWidget(m_pictureCount, 1);
    columns->addWidget(m_zoomSlider);
    return footer;
}

void BrowserWindow::addCommand(const std::function<void()> &command, const char *name,
                               const QString &icon, const QString &title,
                               const QList<QKeySequence> &keys)
{
    if (!command)
        return;
    auto *action = new QAction(title, this);
    action->setObjectName(QLatin1String(name));
    if (m_look.icon)
        action->setIcon(m_look.icon(icon));
    action->setShortcuts(keys);
    const QString key = keys.first().toString(QKeySequence::NativeText);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(title, key));
    connect(action, &QAction::triggered, this, command);
    m_commands.append(action);
    m_toolBar->addAction(action);
    m_menu->addAction(action);
}

void BrowserWindow::makeCommands(const BrowserCommands &commands)
{
    addCommand(commands.desktopFromBrowser, "desktopFromBrowser", QStringLiteral("desktop"),
               tr("Set as Desktop"), {Qt::CTRL | Qt::Key_D});
    addCommand(commands.infoFromBrowser, "infoFromBrowser", QStringLiteral("info"), tr("Info"),
               {Qt::CTRL | Qt::Key_I});
    addCommand(commands.finderFromBrowser, "finderFromBrowser", QStringLiteral("folder"),
               tr("Show in File Manager"), {Qt::CTRL | Qt::Key_R});
    if (commands.deleteFromBrowser)
        m_menu->addSeparator();
    addCommand(commands.deleteFromBrowser, "deleteFromBrowser", QStringLiteral("delete"),
               tr("Delete"),
               {QKeySequence(Qt::Key_Delete), QKeySequence(Qt::ALT | Qt::Key_Delete)});
    if (auto *remove = findChild<QAction *>(QStringLiteral("deleteFromBrowser"))) {
        // In the search field the key deletes letters.
        remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_imageBrowser->addAction(remove);
    }
    m_menu->addSeparator();
    auto *all = m_menu->addAction(tr("Select All"), m_imageBrowser, &QAbstractItemView::selectAll);
    all->setShortcut(QKeySequence::SelectAll);
    all->setShortcutContext(Qt::WidgetShortcut); // shown here; the image browser does it itself
    if (commands.desktopFromBrowser) {
        connect(m_imageBrowser, &ImageBrowserView::openWanted, this, commands.desktopFromBrowser);
    }
}

void BrowserWindow::addKey(const QList<QKeySequence> &keys, const std::function<void()> &command)
{
    auto *action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, command);
    addAction(action);
}

void BrowserWindow::addZoomKeys()
{
    addKey(QKeySequence::keyBindings(QKeySequence::Find), [this] { focusSearchField(); });
    addKey(QKeySequence::keyBindings(QKeySequence::Close), // on Linux two
           [this] { close(); });
    addKey({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { stepZoom(1); });
    addKey({Qt::CTRL | Qt::Key_Minus}, [this] { stepZoom(-1); });
    addKey({Qt::CTRL | Qt::Key_0}, [this] { m_zoomSlider->setValue(sliderValue(UsualZoom)); });
}

void BrowserWindow::tieImageBrowser()
{
    connect(m_imageBrowser, &ImageBrowserView::zoomWanted, this, &BrowserWindow::stepZoom);
    connect(m_imageBrowser, &ImageBrowserView::menuWanted, m_menu,
            [this](QPoint place) { m_menu->popup(place); });
    connect(m_imageBrowser, &ImageBrowserView::typed, this, [this](const QString &text) {
        m_searchField->setFocus();
        m_searchField->insert(text);
    });
    const auto *selection = m_imageBrowser->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this,
            &BrowserWindow::followSelection);
    connect(m_imageBrowser->model(), &QAbstractItemModel::modelReset, this,
            &BrowserWindow::followSelection);
}

/// Commands on nothing are greyed.
void BrowserWindow::followSelection()
{
    const bool any = m_imageBrowser->selectionModel()->hasSelection();
    for (QAction *command : m_commands)
        command->setEnabled(any);
}

void BrowserWindow::stepZoom(int steps)
{
    m_zoomSlider->setValue(m_zoomSlider->value() + steps * ZoomStep);
}

void BrowserWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setBrowserBackground();
}

/// From the search field, Escape clears it, and the keys that lead into the grid do so.
bool BrowserWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_searchField || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        if (m_searchField->text().isEmpty())
            m_imageBrowser->setFocus();
        m_searchField->clear();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        m_imageBrowser->setFocus();
        m_imageBrowser->selectCurrent();
        return true;
    default:
        return false;
    }
}

void BrowserWindow::setBrowserBackground()
{
    QPalette palette = m_look.lightPalette ? m_look.lightPalette() : QPalette();
    const QColor grey = QColor::fromRgbF(0.93F, 0.93F, 0.93F);
    palette.setColor(QPalette::Base, grey);
    palette.setColor(QPalette::Window, grey);
    m_imageBrowser->viewport()->setPalette(palette);
    QPalette view = this->palette();
    view.setColor(QPalette::Base, grey);
    for (const auto role : {QPalette::Text, QPalette::Highlight, QPalette::HighlightedText})
        view.setColor(role, palette.color(role));
    m_imageBrowser->setPalette(view);
}

void BrowserWindow::addSourcePopupItem(const QString &longName)
{
    m_sourcePopup->addItem(longName);
}

QString BrowserWindow::selectedSource() const
{
    return m_sourcePopup->currentIndex() > 0 ? m_sourcePopup->currentText() : QString();
}

QString BrowserWindow::searchText() const
{
    return m_searchField->text();
}

void BrowserWindow::focusSearchField()
{
    m_searchField->setFocus();
    m_searchField->selectAll();
}

void BrowserWindow::setZoom(float zoom)
{
    m_imageBrowser->setZoomValue(zoom);
    const QSignalBlocker blocked(m_zoomSlider);
    m_zoomSlider->setValue(sliderValue(zoom));
}

void BrowserWindow::showCount(int pictures)
{
    m_pictureCount->setText(tr("%n pictures.", nullptr, pictures));
}

} // namespace moravel
