// SPDX-License-Identifier: MIT
#include "WindowFixture.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/FlippedClipView.h"
#include "mainwindow/Sheet.h"

#include <QDialog>
#include <QMenu>
#include <QTextEdit>

TEST(MainWindow, SideBarIsFixedAndCollapses)
{
    WindowFixture w;
    w.window->show();
    QWidget *bar = w.find("sideBar");
    QWidget *divider = w.find("divider");
    QAction *item = w.find<QAction>("sideBarMenuItem");
    EXPECT_EQ(bar->width(), 210);
    const int before = w.window->mainView().width();
    w.window->resize(w.window->width() + 300, w.window->height());
    QTest::qWait(0);
    EXPECT_EQ(bar->width(), 210);
    EXPECT_EQ(w.window->mainView().width(), before + 300);
    QTest::mousePress(divider, Qt::LeftButton);
    QTest::mouseMove(divider, {90, 10});
    QTest::mouseRelease(divider, Qt::LeftButton);
    EXPECT_EQ(bar->width(), 210);

    QTest::mouseDClick(divider, Qt::LeftButton);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_FALSE(item->isChecked());
    QTest::mouseDClick(divider, Qt::LeftButton); // what remains at the edge
    EXPECT_TRUE(bar->isVisible());
    QTest::keyClick(w.window.get(), Qt::Key_F9);
    EXPECT_FALSE(bar->isVisible());
    item->trigger();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(item->isChecked());
}

TEST(MainWindow, GridIsGreyInDarkSurroundingsToo)
{
    WindowFixture w;
    w.window->setPalette(QPalette(Qt::black));
    w.window->show();
    const QImage image = w.find("scrollParent")->grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 5), QColor(0xED, 0xED, 0xED));
}

TEST(MainWindow, StatusLineIsPlainText)
{
    WindowFixture w;
    w.window->show();
    w.window->showStatus(u"<b>x</b>"_s);
    auto *status = w.find<CaptionLabel>("statusBar");
    EXPECT_EQ(status->text(), u"<b>x</b>"_s);
    w.window->showStatus(QString(5000, u'x'));
    EXPECT_TRUE(status->isElided());
    EXPECT_EQ(w.window->mainView().height() - w.window->grid().height(), 30);
    w.window->setNextChange(u"Desktop changes soon"_s);
    EXPECT_TRUE(w.find("nextChange")->isVisible());
}

TEST(MainWindow, MenusAppearWithTheirItems)
{
    WindowFixture w;
    w.window->show();
    EXPECT_FALSE(w.window->desktopMenu().menuAction()->isVisible());
    EXPECT_FALSE(w.window->sourcesMenu().menuAction()->isVisible());
    w.window->desktopMenu().addAction(u"x"_s);
    w.build(1);
    EXPECT_TRUE(w.window->desktopMenu().menuAction()->isVisible());
    EXPECT_TRUE(w.window->sourcesMenu().menuAction()->isVisible());
    QApplication::setActiveWindow(w.window.get());
    bool closing = false;
    w.window->windowShouldClose = [&closing] { return closing; };
    QTest::keyClick(w.window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(w.window->isVisible());
    closing = true;
    QTest::keyClick(w.window.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(w.window->isVisible());
}

TEST(Sheet, ShowsAnyTextAndEndsOnce)
{
    WindowFixture w;
    w.window->show();
    for (const QString &text :
         {QString(), u"<b>one</b> & two"_s, QString(5'000, u'x'), u"line\n"_s.repeated(20'000)}) {
        int ends = 0;
        const Sheet sheet{Sheet::Style::Warning, text, text};
        showSheet(w.window.get(), sheet, [&ends] { ++ends; });
        showSheet(w.window.get(), sheet); // the same, not stacked on it
        const auto sheets = w.window->findChildren<QDialog *>(u"sheet"_s);
        ASSERT_EQ(sheets.size(), 1);
        EXPECT_LE(sheets[0]->height(), 600);
        EXPECT_LE(sheets[0]->width(), 520);
        if (const auto *shown = w.find<QTextEdit>("sheetText"); !text.isEmpty()) {
            EXPECT_TRUE(shown && shown->toPlainText().startsWith(text.left(100)));
        }
        QTest::keyClick(sheets[0], Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(ends, 1);
    }
}

TEST(ToolTips, ReadingSetsTheInverseAndToggles)
{
    const QString key = u"HideTooltips"_s;
    for (const bool hide : {false, true}) {
        SCOPED_TRACE(hide);
        WindowFixture w;
        w.window->show();
        w.build(2);
        w.sources->switchAll(true);
        QString parentTip = u"?"_s;
        w.toolTips->parentButton = [&parentTip](const QString &tip) { parentTip = tip; };
        if (hide)
            w.defaults.values[key] = true;
        w.toolTips->readTooltipOptions();
        QAction *item = w.toolTips->tooltipsMenuItem();
        const auto expectHidden = [&](bool hidden) {
            EXPECT_EQ(item->isChecked(), !hidden);
            EXPECT_EQ(w.defaults.values.value(key).toBool(), hidden);
            EXPECT_EQ(parentTip.isEmpty(), hidden);
            EXPECT_EQ(w.find("clicker", w.cell(1))->toolTip().isEmpty(), hidden);
            EXPECT_EQ(w.find("newDesktopBtn", w.find("desktopThumb"))->toolTip().isEmpty(), hidden);
            EXPECT_TRUE(w.find("clicker", w.find("desktopThumb"))->toolTip().isEmpty());
        };
        expectHidden(hide);
        item->trigger(); // the menu command
        expectHidden(!hide);
    }
}
