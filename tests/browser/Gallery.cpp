// SPDX-License-Identifier: MIT
// Developer's tool: shows the collection below HOME in the browser and saves pictures of its states.
//   browser_gallery FOLDER            (QT_QPA_PLATFORM, QT_SCALE_FACTOR, XDG folders as wanted)
#include "bench/app/RealPlatform.h"

#include "base/Dates.h"
#include "browser/Browser.h"
#include "browser/ImageBrowserView.h"
#include "mainwindow/FlippedClipView.h"
#include "mainwindow/Icons.h"
#include "platform/qt/QtThumbnails.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QSlider>
#include <QStyleFactory>
#include <QTest>

using namespace moravel;

namespace {

ThumbCommands commands()
{
    ThumbCommands commands;
    commands.showLargePic = [](ThumbView &) {};
    return commands;
}

/// A browser with every command, over the real disk.
struct World
{
    World()
    {
        cells.createSpecialCells({});
        const auto nothing = [] {};
        ports.inBackground = [](const auto &work, const auto &done) {
            work();
            done();
        };
        ports.setDesktopToFile = [](const QString &) {};
        ports.revealFile = [](const QString &) {};
        ports.moveToTrash = [](const QStringList &, const std::function<void()> &) {};
        ports.rotateDesktop = nothing;
        look = {themedIcon, iconPixmap, FlippedClipView::lightPalette};
        names = {{QStringLiteral("fractal"), QStringLiteral("Fractal of the Day")},
                 {QStringLiteral("landscape"), QStringLiteral("Landscape of the Day")},
                 {QStringLiteral("moon"), QStringLiteral("The Moon Today")},
                 {QStringLiteral("planets"), QStringLiteral("The Planets Today")}};
        for (const QString &name : names)
            browser.addSourcePopupItem(name);
    }

    bench::RealPlatform platform;
    QtThumbnails thumbnails;
    Dates dates;
    Preferences preferences{platform.defaults};
    ThumbCells cells{{}, commands()};
    QMap<QString, QString> names;
    Folders folders{platform.files, platform.alerts};
    LegacyCaptions legacy{folders, platform.files, dates, names};
    RecordFile records{folders, platform.files, platform.alerts, dates,
                       [](const QString &) { return QString(); }};
    RecordUpdates updates{records, legacy, dates};
    PictureLinks links{folders, platform.files};
    BrowserPorts ports;
    BrowserLook look;
    Browser browser{{platform.files, platform.images, thumbnails, dates, preferences, cells, names,
                     folders, legacy, records, updates, links, ports, look}};
};

void save(QWidget &window, const QString &name)
{
    QTest::qWait(1500);
    QPixmap picture = window.grab();
    for (QWidget *sheet : window.findChildren<QMessageBox *>()) {
        QPainter painter(&picture); // offscreen has no window manager that would place it
        const QPixmap shot = sheet->grab();
        const QSizeF free = (window.size() - sheet->size()) / 2.0;
        painter.fillRect(picture.rect(), QColor(0, 0, 0, 60));
        painter.drawPixmap(QPointF(free.width(), free.height()), shot);
    }
    picture.save(name + QStringLiteral(".png"));
}

void shoot(const QString &prefix)
{
    World world;
    world.browser.picBrowser();
    BrowserWindow &window = world.browser.browserWindow();
    ImageBrowserView &view = window.imageBrowser();
    auto *slider = window.findChild<QSlider *>(QStringLiteral("zoomSlider"));
    auto *search = window.findChild<QLineEdit *>(QStringLiteral("searchField"));
    auto *popup = window.findChild<QComboBox *>(QStringLiteral("sourcePopup"));
    slider->setValue(400);
    save(window, prefix + QStringLiteral("usual-zoom"));
    slider->setValue(120);
    save(window, prefix + QStringLiteral("small-zoom"));
    slider->setValue(900);
    view.setFocus();
    view.select({1});
    view.setCurrentIndex(view.model()->index(1, 0));
    save(window, prefix + QStringLiteral("large-zoom"));
    slider->setValue(400);
    view.clearSelection();
    search->setFocus();
    search->setText(QStringLiteral("misty"));
    save(window, prefix + QStringLiteral("search"));
    search->setText(QStringLiteral("aurora borealis"));
    save(window, prefix + QStringLiteral("no-result"));
    search->clear();
    popup->setCurrentIndex(2);
    save(window, prefix + QStringLiteral("filter"));
    popup->setCurrentIndex(0);
    view.setFocus();
    view.select({1, 2, 5});
    window.findChild<QAction *>(QStringLiteral("deleteFromBrowser"))->trigger();
    save(window, prefix + QStringLiteral("delete"));
    window.findChild<QMessageBox *>()->reject();
    auto *menu = view.findChild<QMenu *>();
    menu->popup({100, 100});
    save(*menu, prefix + QStringLiteral("menu"));
    menu->close();
    window.resize(520, 480);
    save(window, prefix + QStringLiteral("narrow"));
}

void shootEmpty(const QString &prefix)
{
    const QByteArray home = qgetenv("HOME");
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("HOME", home + "/empty");
    qputenv("XDG_DATA_HOME", home + "/empty/share");
    {
        World world;
        world.browser.picBrowser();
        save(world.browser.browserWindow(), prefix + QStringLiteral("empty"));
    }
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", data);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QString folder = app.arguments().value(1, QStringLiteral("."));
    QDir().mkpath(folder);
    shoot(folder + QStringLiteral("/browser-"));
    shootEmpty(folder + QStringLiteral("/browser-"));
    QPalette dark(QColor(0x2d, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
    dark.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
    QApplication::setPalette(dark);
    shoot(folder + QStringLiteral("/dark-"));
    return 0;
}
