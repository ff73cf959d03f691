// SPDX-License-Identifier: MIT
// Developer's tool: fills the main window with made-up cells and saves pictures of its states.
//   gallery FOLDER [large]    (only the large picture window; QT_QPA_PLATFORM, QT_SCALE_FACTOR, LANG as wanted)
#include "Gallery.h"

#include "WindowFixture.h"

#include "mainwindow/CellMenu.h"
#include "mainwindow/DatePickerWidget.h"
#include "mainwindow/HelpMenu.h"
#include "mainwindow/Sheet.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

using namespace moravel;
using namespace moravel::testing;

namespace moravel::testing {

QImage picture(QSize size, int hue)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromHsv(hue, 170, 120));
    sky.setColorAt(0.7, QColor::fromHsv((hue + 40) % 360, 110, 235));
    painter.fillRect(image.rect(), sky);
    painter.setBrush(QColor(255, 245, 220));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.35), size.height() * 0.1,
                        size.height() * 0.1);
    for (int k = 0; k < 3; ++k) {
        QPolygonF hill;
        hill << QPointF(0, size.height());
        for (int x = 0; x <= 20; ++x)
            hill << QPointF(size.width() * x / 20.0,
                            size.height() * (0.55 + 0.14 * k - 0.06 * ((x * (k + 3)) % 7) / 4.0));
        hill << QPointF(size.width(), size.height());
        painter.setBrush(QColor::fromHsv((hue + 80) % 360, 120, 130 - 35 * k));
        painter.drawPolygon(hill);
    }
    return image;
}

void save(QWidget &window, const QString &name)
{
    QTest::qWait(150);
    window.grab().save(name + QStringLiteral(".png"));
}

} // namespace moravel::testing

namespace {

const char *const Names[] = {"Astronomy Picture of the Day",
                             "Bing",
                             "Earth Observatory Image of the Day",
                             "National Parks",
                             "Moon Phase",
                             "Fractal of the Day",
                             "Wikimedia Commons Picture of the Day",
                             "Sky Tonight",
                             "Tagesbild der Bundesanstalt f\u00fcr Gew\u00e4sserkunde",
                             "Satellite",
                             "Art Institute",
                             "Maps",
                             "Birds",
                             "Webb",
                             "Sunrise & Sunset"};
const char *const Captions[] = {
    "The Pillars of Creation in infrared light, seen with a mosaic of forty exposures that "
    "together took "
    "more than a day of observing time and a year of careful processing by amateurs.",
    "A quiet harbour.", "Deleted.\n\nDouble-click to un-delete.",
    "Donaudampfschifffahrtsgesellschaftskapit\u00e4nsm\u00fctzenabzeichen am Flu\u00df",
    "\u0645\u0634\u0647\u062f \u0644\u0644\u0642\u0645\u0631 \u0641\u0648\u0642 "
    "\u0627\u0644\u0635\u062d\u0631\u0627\u0621 \u0641\u064a "
    "\u0644\u064a\u0644\u0629 \u0635\u0627\u0641\u064a\u0629"};

void fill(WindowFixture &w)
{
    const QSize sizes[] = {{800, 600}, {1600, 900}, {600, 900}, {2000, 500}, {500, 500}, {90, 68}};
    for (int i = 0; i < w.cells.count(); ++i) {
        ThumbView &cell = w.cells.at(i);
        cell.setWantedDate(QStringLiteral("July 4, 2011"));
        cell.showDate(i == 4 ? QStringLiteral("July 2, 2011") : cell.wantedDate());
        cell.showCaption(QString::fromUtf8(Captions[i % 5]));
        const ThumbView::Search searches[] = {ThumbView::Search::Failed,
                                              ThumbView::Search::Nothing};
        if (i == 3 || i == 6) {
            cell.setSearch(searches[i / 6]);
            cell.setCaptionField(ThumbView::lookingText());
            cell.showThumbImage(w.cells.images().blank, {});
            continue;
        }
        if (i % 5 == 2)
            cell.showThumbImage(w.cells.images().trashcan, ThumbView::deletedMark());
        else if (i == 7) {
            cell.showCaption(QStringLiteral("Looking for new pic..."));
            cell.blankImage();
        } else if (i != 9)
            cell.showThumbImage(picture(sizes[i % 6], i * 47 % 360),
                                QStringLiteral("http://x/%1").arg(i));
    }
    ThumbView &desktop = w.cells.desktopThumb();
    desktop.showSource(QStringLiteral("Bing"), QStringLiteral("bing"));
    desktop.showDate(QStringLiteral("July 3, 2011"));
    desktop.showCaption(QString::fromUtf8(Captions[0]));
    desktop.showThumbImage(picture({1600, 900}, 200), QStringLiteral("http://x/d"));
    w.window->setNextChange(QStringLiteral("Desktop changes in 42 minutes"));
    w.window->showStatus(QStringLiteral("Double-click any thumbnail to set as desktop."));
}

QMap<QString, QString> names(int count)
{
    QMap<QString, QString> map;
    for (int i = 0; i < count; ++i)
        map.insert(QStringLiteral("s%1").arg(i, 2, 10, QChar(u'0')),
                   QString::fromUtf8(Names[i % 15]));
    return map;
}

ThumbCommands commands()
{
    const auto nothing = [](ThumbView &) {};
    return {nothing, nothing, nothing, nothing, nothing, nothing, nothing, nothing};
}

AboutText aboutText()
{
    return {QIcon(QStringLiteral(MORAVEL_SOURCE_DIR "/packaging/icons/moravel.svg")),
            QStringLiteral("1.0.0"), QStringLiteral("http://127.0.0.1:8642/potd"),
            names(15).values()};
}

/// The news, what sharing says, and the about box.
void saveSheets(WindowFixture &w, const QString &prefix)
{
    const QString news = QStringLiteral("Three new sources since this week");
    const QString text =
        QStringLiteral("The service has three new sources: Sky Tonight, Maps and Birds. Switch "
                       "them on in the Sources menu.\n\nFrom 1 December the pictures of the day "
                       "come at midnight of your own time zone.");

    const struct
    {
        const char *name;
        Sheet sheet;
    } table[] = {
        {"news", {Sheet::Style::Information, news, text}},
        {"news-long",
         {Sheet::Style::Information, news, (text + QStringLiteral("\n\n")).repeated(9)}},
        {"news-empty", {}},
        {"share-failed",
         {Sheet::Style::Warning,
          QStringLiteral("Sorry, that picture could not be shared via email."),
          QStringLiteral("The original web page could not be found.")}},
        {"share-facebook",
         {Sheet::Style::Information,
          QStringLiteral(
              "You will now be taken to your web browser with a link that will allow you "
              "to share this picture on Facebook.\n\nMore information about the picture "
              "is in the clipboard for pasting into the Facebook messsage area.\n"),
          QStringLiteral("This message will not be shown again.")}},
    };

    for (const auto &row : table) {
        showSheet(w.window.get(), row.sheet);
        auto *sheet = w.find<QDialog>("sheet");
        save(*sheet, prefix + QStringLiteral("sheet-") + QLatin1String(row.name));
        delete sheet;
    }
    w.window->helpMenu().actions().last()->trigger();
    auto *about = w.find<QDialog>("aboutBox");
    save(*about, prefix + QStringLiteral("about"));
    about->findChild<QTabWidget *>()->setCurrentIndex(1);
    save(*about, prefix + QStringLiteral("about-licences"));
    delete about;
}

/// The calendar, the menu of the sources and the context menu of a cell.
void savePopups(WindowFixture &w, const QString &prefix)
{
    auto *picker = w.find<DatePickerWidget>("datePicker");
    QTest::mouseClick(picker, Qt::LeftButton, {}, {picker->width() - 8, 10});
    save(*picker->calendarWidget(), prefix + QStringLiteral("calendar"));
    picker->calendarWidget()->window()->close();
    QMenu *cellMenu = makeCellMenu(w.cells.at(0), w.window.get()); // goes when it closes
    for (QMenu *menu :
         {&w.window->sourcesMenu(), &w.window->viewMenu(), &w.window->helpMenu(), cellMenu}) {
        menu->popup(w.window->pos());
        save(*menu, prefix + QStringLiteral("menu-%1").arg(menu->title().remove(u'&')));
        menu->close();
    }
    saveSheets(w, prefix);
}

void shoot(const QString &prefix)
{
    {
        WindowFixture w(commands());
        w.window->show();
        save(*w.window, prefix + QStringLiteral("loading"));
        w.sources->drawCheckboxesAndThumbs(names(15));
        save(*w.window, prefix + QStringLiteral("welcome"));
        w.sources->switchAll(true);
        save(*w.window, prefix + QStringLiteral("waiting"));
        w.toolTips->readTooltipOptions();
        fillHelpMenu(w.window->helpMenu(), *w.window, {[] {}, [] {}, [] {}, [] {}, aboutText});
        fill(w);
        w.window->sideBar().setNewsButtonVisible(true);
        w.window->activateWindow();
        QTest::mouseMove(w.cell(5), {100, 100});
        w.find<QWidget>("clicker", w.cell(1))->setFocus();
        save(*w.window, prefix + QStringLiteral("full"));
        savePopups(w, prefix);
        w.window->resize(500, 640);
        save(*w.window, prefix + QStringLiteral("narrow"));
        w.sources->switchAll(false);
        w.window->resize(900, 640);
        save(*w.window, prefix + QStringLiteral("nothing"));
    }
    WindowFixture w;
    w.window->show();
    w.sources->drawCheckboxesAndThumbs({});
    save(*w.window, prefix + QStringLiteral("noservice"));
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x2d, 0x2d, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
    palette.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
    return palette;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QString folder = app.arguments().value(1, QStringLiteral("."));
    QDir().mkpath(folder);
    if (app.arguments().value(2) == u"large") {
        shootLargePic(folder + QStringLiteral("/"));
        return 0;
    }
    shoot(folder + QStringLiteral("/light-"));
    shootLargePic(folder + QStringLiteral("/light-"));
    app.setPalette(darkPalette());
    shoot(folder + QStringLiteral("/dark-"));
    shootLargePic(folder + QStringLiteral("/dark-"));
    app.setPalette(app.style()->standardPalette());
    app.setLayoutDirection(Qt::RightToLeft);
    shoot(folder + QStringLiteral("/rtl-"));
    return 0;
}
