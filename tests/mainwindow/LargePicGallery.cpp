// SPDX-License-Identifier: MIT
#include "Gallery.h"
#include "LargePicFixture.h"

#include "platform/qt/QtImages.h"

#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

namespace moravel::testing {

namespace {

/// Texts as long as German ones.
class German : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *, const char *source, const char *, int) const override
    {
        static const QHash<QString, QString> texts{
            {QStringLiteral("&Original Page"), QStringLiteral("&Urspr\u00fcngliche Internetseite")},
            {QStringLiteral("Set as &Desktop"),
             QStringLiteral("Als &Schreibtischhintergrund verwenden")},
            {QStringLiteral("This file cannot be shown as a picture."),
             QStringLiteral("Diese Datei kann leider nicht als Bild dargestellt werden, weil ihr "
                            "Format unbekannt ist.")}};
        return texts.value(QString::fromUtf8(source));
    }
};

const QString Text = QStringLiteral(
    "Stars are forming in these towers of cold gas and dust, six and a half thousand light years "
    "away in the constellation Serpens. The picture joins <a href='https://x/'>forty exposures</a> "
    "in "
    "near-infrared light, which the dust lets pass; red marks hydrogen, blue the stars behind.<p>"
    "Seen from the Earth the region is as wide as a grain of rice at arm's length.");

const QString Caption = QStringLiteral("The Pillars of Creation in infrared light");

struct Shooting
{
    Shooting() : f(images)
    {
        f.large.showLargePic(f.cells.at(0), 1); // makes the window
        window().resize(920, 780);
        QApplication::setActiveWindow(&window());
    }

    LargePicWindow &window() const { return *f.large.pic(); }

    ThumbView &cell(const QString &picture, const QString &caption = Caption,
                    const QString &text = Text)
    {
        ThumbView &cell = f.cells.at(0);
        cell.showSource(QStringLiteral("Astronomy Picture of the Day"), QStringLiteral("apod"));
        cell.setPicPath(QStringLiteral("http://x/") + picture);
        cell.showCaption(caption);
        cell.setInfoString(text);
        return cell;
    }

    void show(ThumbView &shown)
    {
        f.large.showLargePic(shown, 1);
        QTest::qWait(600);
        window().picDetails().showHtml(shown.infoString()); // made safe in the program
    }

    void keep(const QString &name, const QImage &image) const { image.save(f.keep(name), "JPEG"); }

    QtImages images;
    LargePicFixture f;
};

} // namespace

void shootLargePic(const QString &prefix)
{
    const QString name = prefix + QStringLiteral("large-");
    Shooting s;
    s.show(s.cell(QStringLiteral("none.jpg"), Caption, {}));
    s.window().picDetails().clear();
    s.f.large.showProgress(41,
                           QStringLiteral("Downloading pic from Astronomy Picture of the Day: "
                                          "976 of 2383 KB"));
    save(s.window(), name + QStringLiteral("loading"));
    s.keep(QStringLiteral("wide.jpg"), picture({3840, 2160}, 200));
    s.keep(QStringLiteral("tall.jpg"), picture({1500, 2400}, 30));
    s.keep(QStringLiteral("small.jpg"), picture({320, 240}, 100));
    s.show(s.cell(QStringLiteral("wide.jpg")));
    save(s.window(), name + QStringLiteral("picture"));
    s.window().largeImage().zoomTo(0.7);
    QApplication::setActiveWindow(&s.window());
    s.f.find("setDesktopBtn")->setFocus(Qt::TabFocusReason);
    QTest::qWait(600);
    save(s.window(), name + QStringLiteral("zoomed"));
    s.show(s.cell(QStringLiteral("tall.jpg")));
    save(s.window(), name + QStringLiteral("portrait"));
    s.show(s.cell(QStringLiteral("wide.jpg"), Caption.repeated(6), (Text + u'\n').repeated(8)));
    save(s.window(), name + QStringLiteral("long-text"));
    s.show(s.cell(QStringLiteral("small.jpg")));
    s.window().toggleStandardFrame();
    save(s.window(), name + QStringLiteral("small"));
    s.show(s.cell(QStringLiteral("page.html")));
    s.window().resize(700, 620);
    save(s.window(), name + QStringLiteral("cannot-show"));

    German german;
    QApplication::installTranslator(&german);
    Shooting g;
    g.keep(QStringLiteral("wide.jpg"), picture({3840, 2160}, 200));
    g.show(g.cell(
        QStringLiteral("wide.jpg"),
        QStringLiteral("Donaudampfschifffahrtsgesellschaftskapit\u00e4nsm\u00fctzenabzeichen am "
                       "Ufer des Flusses bei Sonnenuntergang")));
    g.window().resize(g.window().minimumSizeHint().width(), 700); // as narrow as it can be
    QTest::qWait(600);
    save(g.window(), name + QStringLiteral("german"));
    QApplication::removeTranslator(&german);
}

} // namespace moravel::testing
