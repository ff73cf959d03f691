// SPDX-License-Identifier: MIT
// The browser over a real store and folder, with everything outside of it played.
#include "browser/Browser.h"

#include "support/ExpectWarning.h"
#include "support/FakeImages.h"
#include "support/FakeThumbnails.h"

#include "browser/ImageBrowserView.h"
#include "store/StoreWorld.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <cmath>

namespace moravel {
namespace {

using namespace testing;

class BrowserTest : public ::testing::Test
{
protected:
    BrowserTest()
    {
        const QImage image(2, 2, QImage::Format_RGB32);
        ThumbCommands commands;
        commands.showLargePic = [this](ThumbView &cell) {
            large.append(QStringList{cell.picPath(), cell.captionField(), cell.sourceField(),
                                     cell.dateField()}
                             .join(u'|'));
        };
        cells = std::make_unique<ThumbCells>(ThumbImages{image, image, image}, commands);
        cells->createSpecialCells({});
        store.sourceNames = {{QStringLiteral("bing"), QStringLiteral("Bing")},
                             {QStringLiteral("wiki"), QStringLiteral("Wiki Commons")}};
        ports.inBackground = [](const auto &work, const auto &done) {
            work();
            done();
        };
        ports.setDesktopToFile = [this](const QString &path) {
            log.append(QStringLiteral("desktop ") + name(path));
        };
        ports.revealFile = [this](const QString &path) {
            log.append(QStringLiteral("reveal ") + name(path));
        };
        ports.rotateDesktop = [this] { log.append(QStringLiteral("rotate")); };
        ports.moveToTrash = [this](const QStringList &paths, const auto &done) {
            QStringList names;
            for (const QString &path : paths) {
                names.append(name(path));
                if (!trashFails)
                    QFile::remove(path);
            }
            log.append(QStringLiteral("trash ") + names.join(u' '));
            done();
        };
        ports.sufficientData = [](const QStringList &fields) { return fields.size() == 7; };
        ports.optionKeyHeld = [this] { return alt; };
        makeBrowser();
    }

    void makeBrowser()
    {
        browser = std::make_unique<Browser>(BrowserContext{
            store.files, images, thumbnails, store.dates, preferences, *cells, store.sourceNames,
            store.folders, store.legacy, store.records, store.updates, links, ports, look});
    }

    static QString name(const QString &path) { return path.section(u'/', -1); }

    /// Records and pictures 1.jpg … of consecutive days, the last one the newest.
    void fill(int count)
    {
        QByteArray records;
        for (int i = 1; i <= count; ++i) {
            const QByteArray n = QByteArray::number(i);
            store.home->write(QStringLiteral("Pictures/Moravel/%1.jpg").arg(i), "IMG");
            store.home->write(QStringLiteral("Pictures/Moravel/thumbs/t%1.jpg").arg(i), "IMG");
            records += QByteArray::number(20110700 + i) + (i % 2 ? "\twiki" : "\tbing")
                + "\thttp://x/t" + n + ".jpg\thttp://x/" + n + ".jpg\tp\tPicture " + n + "\tInfo\n";
        }
        store.setData(records);
    }

    void open()
    {
        expectWarning(QStringLiteral("raise()")); // offscreen there is nothing to raise above
        browser->picBrowser();
        QCoreApplication::processEvents();
    }

    template <typename T>
    T *find(const char *field)
    {
        return browser->browserWindow().findChild<T *>(QLatin1String(field));
    }

    ImageBrowserView &view() { return browser->browserWindow().imageBrowser(); }

    void trigger(const char *command) { find<QAction>(command)->trigger(); }

    void search(const char *text) { find<QLineEdit>("searchField")->setText(QLatin1String(text)); }

    QStringList titles()
    {
        QStringList list;
        for (int i = 0; i < browser->images().rowCount(); ++i)
            list.append(browser->images().itemAtIndex(i).imageTitle());
        return list;
    }

    /// The open sheet; presses its button of that title.
    QString answer(const QString &title)
    {
        auto *sheet = find<QMessageBox>("deleteSheet");
        if (!sheet || !sheet->isVisible())
            return {};
        const QString texts = sheet->text() + u'|' + sheet->informativeText();
        for (QAbstractButton *button : sheet->buttons()) {
            if (button->text() == title)
                button->click();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return texts;
    }

    StoreWorld store;
    PictureLinks links{store.folders, store.files};
    FakeImages images;
    FakeThumbnails thumbnails;
    FakeDefaults defaults;
    Preferences preferences{defaults};
    std::unique_ptr<ThumbCells> cells;
    BrowserPorts ports;
    BrowserLook look{[](const QString &) { return QIcon(); }, {}, {}};
    QStringList log;
    QStringList large;
    bool alt = false;
    bool trashFails = false;
    std::unique_ptr<Browser> browser; ///< Last: it uses the others.
};

TEST_F(BrowserTest, showsTheCollectionNewestFirst)
{
    fill(3);
    open();
    EXPECT_EQ(titles(),
              (QStringList{QStringLiteral("Picture 3"), QStringLiteral("Picture 2"),
                           QStringLiteral("Picture 1")}));
    EXPECT_EQ(find<QLabel>("pictureCount")->text(), QStringLiteral("3 pictures."));
    EXPECT_EQ(find<QSlider>("zoomSlider")->value(), 400);
    EXPECT_FLOAT_EQ(float(view().zoomValue()), 0.4F);
    EXPECT_TRUE(find<QLineEdit>("searchField")->hasFocus());
    EXPECT_EQ(view().viewport()->palette().color(QPalette::Base),
              QColor::fromRgbF(0.93F, 0.93F, 0.93F));
    while (thumbnails.deliver()) { }
    const QString tip = browser->images().index(0).data(Qt::ToolTipRole).toString();
    EXPECT_EQ(tip,
              QStringLiteral("<b>Picture 3</b><br>Wiki Commons \u00B7 July 3, 2011 \u00B7 1.2 kB"));
}

TEST_F(BrowserTest, zoomIsRememberedAndOddValuesAreTaken)
{
    const struct
    {
        float saved;
        float shown;
        int slider;
    } cases[] = {{0.0F, 0.4F, 400}, {0.75F, 0.75F, 750}, {7.0F, 7.0F, 1000}, {-1.0F, -1.0F, 0}};

    for (const auto &c : cases) {
        preferences.saveZoomPrefs(c.saved);
        makeBrowser();
        open();
        EXPECT_FLOAT_EQ(float(view().zoomValue()), c.shown);
        EXPECT_EQ(find<QSlider>("zoomSlider")->value(), c.slider);
        EXPECT_FLOAT_EQ(preferences.readZoomPrefs(), c.saved);
    }
    preferences.saveZoomPrefs(std::nan(""));
    makeBrowser();
    open();
    EXPECT_TRUE(std::isnan(view().zoomValue()));
    QTest::keyClick(&browser->browserWindow(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FLOAT_EQ(preferences.readZoomPrefs(), 0.45F);
}

TEST_F(BrowserTest, searchAndSourceFilterAndKeepThePlace)
{
    browser->addSourcePopupItem(QStringLiteral("Bing"));
    fill(60);
    open();
    browser->addSourcePopupItem(QStringLiteral("Wiki Commons"));
    QSignalSpy resets(&browser->images(), &QAbstractItemModel::modelReset);
    search("Picture 2");
    EXPECT_EQ(titles().size(), 11);
    const auto loads = resets.size();
    search("picture 2");
    browser->searchInBrowser();
    EXPECT_EQ(resets.size(), loads); // the same rows: not shown anew
    view().select({3});
    view().selectionModel()->setCurrentIndex(browser->images().index(3),
                                             QItemSelectionModel::NoUpdate);
    const QString kept = titles()[3];
    const int top = view().visualRect(view().currentIndex()).top();
    search("");
    ASSERT_EQ(view().selectedItems().size(), 1);
    EXPECT_EQ(titles()[view().selectedItems().first()], kept);
    EXPECT_EQ(view().visualRect(view().currentIndex()).top(), top);
    find<QComboBox>("sourcePopup")->setCurrentIndex(2);
    EXPECT_EQ(titles().size(), 30);
    EXPECT_EQ(titles().first(), QStringLiteral("Picture 59"));
    EXPECT_EQ(find<QLabel>("pictureCount")->text(), QStringLiteral("30 pictures."));
    search("no such");
    EXPECT_EQ(find<QLabel>("pictureCount")->text(), QStringLiteral("0 pictures."));
}

TEST_F(BrowserTest, commandsActOnTheFirstSelectedItem)
{
    fill(3);
    open();
    EXPECT_FALSE(find<QAction>("desktopFromBrowser")->isEnabled());
    view().select({1, 2});
    trigger("desktopFromBrowser");
    trigger("finderFromBrowser");
    trigger("infoFromBrowser");
    QTest::keyClick(&view(), Qt::Key_Return);
    const QPoint first = view().visualRect(browser->images().index(0)).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(log,
              (QStringList{QStringLiteral("desktop 2.jpg"), QStringLiteral("reveal 2.jpg"),
                           QStringLiteral("desktop 2.jpg"), QStringLiteral("desktop 3.jpg")}));
    store.setData({}); // its record is gone
    view().select({0});
    trigger("infoFromBrowser");
    EXPECT_EQ(large,
              (QStringList{QStringLiteral("http://x/2.jpg|Picture 2|Bing|July 2, 2011"),
                           browser->images().itemAtIndex(0).imageUID() + QStringLiteral("|||")}));
    EXPECT_FALSE(cells->browserThumb().usedAsDesktop());
}

TEST_F(BrowserTest, deletesAfterAskingAndMarksTheRecord)
{
    fill(4);
    ThumbView &cell = cells->addThumbView(QStringLiteral("Bing"), QStringLiteral("bing"), {});
    cell.setThumbPath(QStringLiteral("http://x/t2.jpg"));
    open();
    cells->desktopThumb().setPicPath(browser->images().itemAtIndex(2).imageUID());
    view().select({2});
    trigger("deleteFromBrowser");
    EXPECT_EQ(
        answer(QStringLiteral("Cancel")),
        QStringLiteral(
            "Are you sure you want to delete the selected pic?|This action cannot be undone."));
    EXPECT_EQ(view().selectedItems(), QList<int>{2});
    EXPECT_TRUE(log.isEmpty());
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Delete);
    answer(QStringLiteral("Delete"));
    EXPECT_EQ(log, (QStringList{QStringLiteral("rotate"), QStringLiteral("trash 2.jpg t2.jpg")}));
    EXPECT_EQ(titles(),
              (QStringList{QStringLiteral("Picture 4"), QStringLiteral("Picture 3"),
                           QStringLiteral("Picture 1")}));
    EXPECT_TRUE(store.data().contains("bing\tDELETED\thttp://x/2.jpg"));
    EXPECT_EQ(cell.thumbPath(), ThumbView::deletedMark());
    EXPECT_EQ(cell.captionString(), QStringLiteral("Deleted.\n\nDouble-click to un-delete."));
}

TEST_F(BrowserTest, deletesSeveralEvenWhenTheItemsChangeUnderTheSheet)
{
    fill(5);
    open();
    view().select({1, 2, 4});
    trigger("deleteFromBrowser");
    search("Picture 4"); // the window is blocked, but a rebuild may come from elsewhere
    EXPECT_EQ(answer(QStringLiteral("Delete")).section(u'|', 0, 0),
              QStringLiteral("Are you sure you want to delete the 3 selected pics?"));
    EXPECT_EQ(log, QStringList{QStringLiteral("trash 4.jpg t4.jpg")});
    search("");
    alt = true;
    trashFails = true;
    view().select({0, 1});
    trigger("deleteFromBrowser");
    EXPECT_EQ(log.last(), QStringLiteral("trash 5.jpg t5.jpg 3.jpg t3.jpg"));
    EXPECT_EQ(store.data().count("DELETED"), 3);
    EXPECT_EQ(titles().size(), 4); // what could not be trashed is still there
}

TEST_F(BrowserTest, droppedFilesAreShownUntilTheNextSearch)
{
    fill(1);
    const QString folder = store.home->path(QStringLiteral("drop"));
    for (const char *file : {"b.png", "a.jpg", "c.txt", "sub/d.jpg"})
        store.home->write(QStringLiteral("drop/") + QLatin1String(file), "IMG");
    open();
    browser->addImagesFromDirectory(folder);
    browser->addImagesFromDirectory(folder + QStringLiteral("/sub/d.jpg"));
    browser->addImageWithPath(folder + QStringLiteral("/c.txt"));
    EXPECT_EQ(find<QLabel>("pictureCount")->text(), QStringLiteral("4 pictures."));
    EXPECT_EQ(browser->images().itemAtIndex(1).imageUID(), folder + QStringLiteral("/a.jpg"));
    store.home->write(QStringLiteral("drop/1.jpg"), "IMG");
    browser->addImageWithPath(folder + QStringLiteral("/1.jpg")); // the name of a recorded picture
    alt = true;
    view().select({1, 4});
    trigger("deleteFromBrowser");
    EXPECT_EQ(log, QStringList{QStringLiteral("trash a.jpg 1.jpg")});
    EXPECT_FALSE(store.data().contains("DELETED"));
    EXPECT_EQ(browser->images().rowCount(), 3);
    browser->setupBrowsing();
    EXPECT_EQ(titles(), QStringList{QStringLiteral("Picture 1")});
}

TEST_F(BrowserTest, theKeyboardReachesEverything)
{
    fill(3);
    open();
    auto *field = find<QLineEdit>("searchField");
    QTest::keyClicks(field, QStringLiteral("Picture"));
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(view().hasFocus());
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(view().selectedItems(), QList<int>{0});
    QTest::keyClick(&view(), Qt::Key_X);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(field->text(), QStringLiteral("Picturex"));
    EXPECT_TRUE(find<QAction>("clearSearch")->isVisible());
    EXPECT_EQ(field->findChildren<QAbstractButton *>().last()->accessibleName(),
              QStringLiteral("Clear the search"));
    trigger("clearSearch");
    EXPECT_EQ(titles().size(), 3);
    EXPECT_FALSE(find<QAction>("clearSearch")->isVisible());
    QTest::keyClick(field, Qt::Key_X);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), QString());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(view().hasFocus());
    QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Delete); // deletes letters, not pictures
    EXPECT_FALSE(find<QMessageBox>("deleteSheet"));
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(browser->browserWindow().isVisible());
}

} // namespace
} // namespace moravel
