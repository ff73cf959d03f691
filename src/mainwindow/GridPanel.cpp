// SPDX-License-Identifier: MIT
#include "mainwindow/GridPanel.h"

#include "mainwindow/FlippedClipView.h"
#include "mainwindow/Icons.h"
#include "mainwindow/Spinner.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace moravel {

namespace {

class MessagePanel : public GridPanel
{
public:
    MessagePanel(const QString &objectName, const QString &iconName, const QString &title,
                 const QString &text)
        : GridPanel(objectName)
    {
        constexpr int Points = 48;
        const QColor colour = blend(FlippedClipView::lightPalette().color(QPalette::Text),
                                    FlippedClipView::backgroundColour(), 0.45);
        auto *icon = new QLabel(this);
        icon->setPixmap(iconPixmap(iconName, Points, colour, devicePixelRatioF()));
        icon->setAlignment(Qt::AlignCenter);
        content()->addWidget(icon);
        content()->addSpacing(8);
        QFont big = font();
        big.setPointSizeF(big.pointSizeF() * 1.3);
        big.setBold(true);
        addText(title)->setFont(big);
        addText(text);
    }

    void addButton(const QString &title, const std::function<void()> &command)
    {
        auto *button = new QPushButton(title, this);
        connect(button, &QPushButton::clicked, this, command);
        content()->addSpacing(10);
        content()->addWidget(button, 0, Qt::AlignHCenter);
    }

private:
    QLabel *addText(const QString &text)
    {
        auto *label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        content()->addWidget(label);
        return label;
    }
};

} // namespace

GridState gridState(bool built, int sources, bool saved, int visibleThumbs)
{
    if (!built)
        return GridState::Loading;
    if (sources == 0)
        return GridState::NoService;
    if (visibleThumbs > 0)
        return GridState::Cells;
    return saved ? GridState::NothingSelected : GridState::Welcome;
}

GridPanel::GridPanel(const QString &objectName)
{
    setObjectName(objectName);
    auto *rows = new QVBoxLayout(this);
    rows->addStretch(2);
    m_content = new QVBoxLayout;
    m_content->setContentsMargins(20, 0, 20, 0);
    rows->addLayout(m_content);
    rows->addStretch(3); // a little above the middle looks like the middle
}

GridPanel *makeLoadingPanel()
{
    class LoadingPanel : public GridPanel
    {
    public:
        LoadingPanel() : GridPanel(QStringLiteral("loadingPanel"))
        {
            content()->addWidget(new Spinner(this), 0, Qt::AlignHCenter);
        }
    };

    return new LoadingPanel;
}

GridPanel *makeNoServicePanel(const std::function<void()> &retry)
{
    auto *panel = new MessagePanel(
        QStringLiteral("noServicePanel"), QStringLiteral("no-service"),
        GridPanel::tr("The picture service does not answer"),
        GridPanel::tr("No list of sources could be loaded. Moravel shows pictures as soon as the "
                      "service can be reached."));
    if (retry)
        panel->addButton(GridPanel::tr("&Try Again"), retry);
    return panel;
}

GridPanel *makeNothingSelectedPanel()
{
    return new MessagePanel(QStringLiteral("nothingSelectedPanel"), QStringLiteral("sources"),
                            GridPanel::tr("No source is switched on"),
                            GridPanel::tr("Switch on the sources that you want to see in the "
                                          "Sources menu."));
}

} // namespace moravel
