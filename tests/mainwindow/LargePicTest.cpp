// SPDX-License-Identifier: MIT
#include "LargePicFixture.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/Contrast.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QTextCursor>
#include <QToolButton>

namespace {

struct LargePicTest : ::testing::Test
{
    void open(int index, int clicks = 1) { show(f.cells.at(index), clicks); }

    void show(ThumbView &cell, int clicks = 1)
    {
        f.large.showLargePic(cell, clicks);
        settle();
    }

    void settle()
    {
        do
            QTest::qWait(0); // the new size comes with an event
        while (images.deliver());
    }

    QString caption() const { return f.find<CaptionLabel>("captionField")->text(); }

    QString info() const { return f.large.pic()->picDetails().toPlainText(); }

    bool isEnabled(const char *button) const { return f.find(button)->isEnabled(); }

    void key(int code, Qt::KeyboardModifiers modifiers = {})
    {
        QApplication::setActiveWindow(f.large.pic());
        QWidget *focus = f.large.pic()->focusWidget();
        QTest::keyClick(focus ? focus : f.large.pic(), Qt::Key(code), modifiers);
        settle();
    }

    FakeImages images;
    LargePicFixture f{images};
};

TEST_F(LargePicTest, showsSizeTextAndInfo)
{
    images.pictureSize = {4000, 3000};
    f.keep(u"0.jpg"_s);
    open(0);
    EXPECT_TRUE(f.large.isVisible());
    EXPECT_EQ(f.large.pic()->windowTitle(), u"Source 0 - July 4, 2011"_s);
    EXPECT_EQ(caption(), u"Caption (4000 x 3000 pixels, 2.0 KB)"_s);
    EXPECT_EQ(info(), u"About it"_s);
    EXPECT_TRUE(isEnabled("deleteButton"));
    EXPECT_FALSE(isEnabled("twitterButton")) << "nothing to share with";
    EXPECT_FALSE(f.find("progress")->isVisible());
    const int before = images.decodings;
    f.large.showAgain(f.cells.at(0));
    settle();
    EXPECT_EQ(images.decodings, before) << "the same file is not decoded again";
    EXPECT_EQ(caption(), u"Caption (4000 x 3000 pixels, 2.0 KB)"_s);
}

TEST_F(LargePicTest, itsTextIsReadableAfterTheDesktopTurnsDark)
{
    open(0);
    const QPalette usual = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x36, 0x36, 0x3a), QColor(0x2b, 0x2b, 0x2e)));
    const QPalette shown = f.large.pic()->picDetails().palette();
    EXPECT_GE(contrast(shown.color(QPalette::Text), shown.color(QPalette::Window)), TextContrast);
    QApplication::setPalette(usual);
}

TEST_F(LargePicTest, waitsForADownload)
{
    open(1);
    EXPECT_EQ(f.calls, QStringList{u"download 1001"_s});
    EXPECT_EQ(caption(), u"Caption"_s);
    EXPECT_EQ(info(), QString());
    const QString path = f.large.currentLargePicPath();
    f.large.showProgress(66.67F, u"Downloading"_s);
    EXPECT_TRUE(f.find("progress")->isVisible());
    EXPECT_EQ(f.find<QProgressBar>("progress")->value(), 666);
    f.large.showProgress(std::nullopt, {});
    EXPECT_FALSE(f.find("progressField")->isVisible());
    f.large.showFailure();
    EXPECT_FALSE(f.find("progress")->isVisible());
    EXPECT_TRUE(f.find("progressField")->isVisible());
    f.large.hideProgress();

    f.downloads.insert(path);
    open(1);
    EXPECT_EQ(f.calls.size(), 1) << "on its way already";
    EXPECT_TRUE(f.find("progress")->isVisible());
    EXPECT_EQ(info(), u"About it"_s);

    f.keep(u"1.jpg"_s);
    f.large.displayPicFile(u"/another.jpg"_s);
    EXPECT_EQ(caption(), u"Caption"_s);
    f.large.displayPicFile(path);
    settle();
    EXPECT_EQ(caption(), u"Caption (4 x 3 pixels)"_s);
}

TEST_F(LargePicTest, filesThatAreNoPicturesOrOutside)
{
    f.cells.at(0).setPicPath(u"http://x/page.html"_s);
    open(0);
    EXPECT_TRUE(f.find("cantShowField")->isVisible());
    EXPECT_EQ(info(), u"About it"_s);
    f.home.write(u"Pictures/Moravel/1.jpg"_s, "broken");
    open(1);
    EXPECT_TRUE(f.find("cantShowField")->isVisible());
    EXPECT_EQ(caption(), u"Caption (6 B)"_s);

    ThumbView &desktop = f.cells.desktopThumb();
    LargePicFixture::fill(desktop, f.home.write(u"far.jpg"_s, "IMG"));
    show(desktop, 2);
    EXPECT_FALSE(f.find("cantShowField")->isVisible());
    EXPECT_EQ(f.large.pic()->windowTitle(), u"far.jpg"_s);
    EXPECT_EQ(caption(), u"far.jpg (4 x 3 pixels, 3 B)"_s);
    EXPECT_EQ(info(), QString());
    EXPECT_FALSE(f.find("parentButton")->isVisible());
    EXPECT_FALSE(isEnabled("deleteButton"));
    f.keep(u"2.jpg"_s);
    open(2);
    EXPECT_TRUE(f.find("parentButton")->isVisible());
    EXPECT_TRUE(isEnabled("deleteButton"));
    EXPECT_TRUE(f.calls.filter(u"download 99"_s).isEmpty());
}

TEST_F(LargePicTest, deletedFoldersAndMissingTexts)
{
    f.cells.at(0).setThumbPath(ThumbView::deletedMark());
    open(0, 1);
    EXPECT_EQ(f.calls, QStringList());
    open(0, 2);
    f.desktopPath = u"/usr/share/pictures/"_s;
    show(f.cells.desktopThumb(), 2);
    EXPECT_EQ(f.calls, (QStringList{u"restore 1000"_s, u"prefs"_s}));
    EXPECT_FALSE(f.large.isVisible());
    f.calls.clear();
    f.keep(u"1.jpg"_s);
    f.cells.at(1).setInfoString({});
    open(1);
    EXPECT_EQ(info(), u"Looking for more info..."_s);
    EXPECT_EQ(f.calls, QStringList{u"caption 1001"_s});
    f.cells.at(1).setInfoString(u"NEW"_s);
    open(1);
    EXPECT_FALSE(f.find("parentButton")->isVisible());
}

TEST_F(LargePicTest, keysStepDeleteAndClose)
{
    for (int i = 0; i < 3; ++i)
        f.keep(u"%1.jpg"_s.arg(i));
    open(0);
    f.large.pic()->picDetails().setFocus();
    key(Qt::Key_Right);
    EXPECT_EQ(f.large.currentThumb(), &f.cells.at(1));
    f.find<QToolButton>("setDesktopBtn")->setFocus();
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    EXPECT_EQ(f.large.currentThumb(), &f.cells.at(2));
    f.cells.at(0).setThumbPath(ThumbView::deletedMark());
    f.cells.at(1).setHidden(true);
    key(Qt::Key_Right);
    EXPECT_EQ(f.large.currentThumb(), &f.cells.at(2)) << "no other can be shown";
    f.find<QToolButton>("setDesktopBtn")->click();
    f.find<QToolButton>("emailButton")->click();
    key(Qt::Key_Escape);
    EXPECT_FALSE(f.large.isVisible());
    EXPECT_TRUE(f.large.pic()->largeImage().image().isNull()) << "closed, it keeps no memory";
    open(2);
    key(Qt::Key_Delete);
    EXPECT_FALSE(f.large.isVisible());
    EXPECT_EQ(f.calls,
              (QStringList{u"desktop "_s + f.large.currentLargePicPath(), u"email 1002"_s,
                           u"delete 1002"_s}));
}

TEST_F(LargePicTest, mouseZoomsAndFitsTheWindow)
{
    images.pictureSize = {600, 300};
    f.keep(u"0.jpg"_s);
    open(0);
    LargeImageView &view = f.large.pic()->largeImage();
    EXPECT_EQ(view.image().size(), QSize(600, 300));
    const QRect before = f.large.pic()->geometry();
    QTest::mouseDClick(&view, Qt::LeftButton);
    settle();
    EXPECT_EQ(f.large.pic()->frameGeometry().size(), QSize(634, 554));
    EXPECT_EQ(view.height(), 324) << "the picture in its own size";
    f.find<QToolButton>("zoomButton")->click();
    settle();
    EXPECT_EQ(f.large.pic()->geometry(), before);

    images.pictureSize = {4000, 3000};
    f.large.displayPicFile(f.large.currentLargePicPath());
    settle();
    EXPECT_LT(view.image().width(), 1000) << "decoded for what is seen";
    key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(view.image().width(), 4000);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_LT(view.image().width(), 1000);
    f.large.pic()->resize(700, 600);
    settle();
    EXPECT_EQ(view.image().size(),
              QSize(4000, 3000).scaled(view.size() - QSize(34, 24), Qt::KeepAspectRatio));
}

TEST_F(LargePicTest, originalPage)
{
    f.keep(u"0.jpg"_s);
    f.cells.at(0).setParentPath(u"https://x/a b"_s);
    open(0);
    auto *button = f.find<QToolButton>("parentButton");
    button->click();
    EXPECT_EQ(f.calls.takeLast(), u"open https://x/a%20b"_s);
    f.cells.at(0).setParentPath({});
    button->click();
    EXPECT_FALSE(button->isEnabled());
    f.pageWanted(u" http://y/ \n"_s);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(f.calls.takeLast(), u"open http://y/"_s);
    for (const char *nothing : {"", "file:///etc/passwd"}) {
        open(0);
        const qint64 usual = button->icon().cacheKey();
        button->click();
        f.pageWanted(QString::fromLatin1(nothing));
        EXPECT_NE(button->icon().cacheKey(), usual) << "the stop sign";
        EXPECT_TRUE(f.calls.isEmpty());
    }
}

TEST_F(LargePicTest, textLoadsNothingAndFollowsNoLink)
{
    f.keep(u"0.jpg"_s);
    open(0);
    PicDetails &details = f.large.pic()->picDetails();
    const QString secret = f.home.write(u"secret.html"_s, "secret");
    details.showHtml(u"<a href='file://%1'>one</a> <a href='https://x/'>two</a>"
                     "<img src='file://%1'>"_s.arg(secret));
    EXPECT_FALSE(
        details.loadResource(QTextDocument::HtmlResource, QUrl::fromLocalFile(secret)).isValid());
    const QString text = details.toPlainText();
    for (const int at : {1, 5}) {
        QTextCursor cursor(details.document());
        cursor.setPosition(at);
        QTest::mouseClick(details.viewport(), Qt::LeftButton, {},
                          details.cursorRect(cursor).center());
    }
    EXPECT_EQ(f.calls, QStringList{u"open https://x/"_s});
    EXPECT_EQ(details.toPlainText(), text);
}

} // namespace
