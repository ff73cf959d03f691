// SPDX-License-Identifier: MIT
// browser_bench [all|stay|delete COUNT]: opens the browser on the collection below HOME (made by make_collection;
// XDG_DATA_HOME is HOME/share) in the whole application and tells how long things take, as the user feels them:
// from the command or the key to the painted window. With "all" it also scrolls until every picture has been
// shown; with "stay" it only opens the browser, for scripts/bench-browser, which measures it beside other
// programs; with "delete" it deletes pictures for good: for a copy (cp -al) of a collection.
#include "bench/ProcessMemory.h"
#include "bench/StolenTime.h"
#include "bench/app/RealPlatform.h"

#include "app/MoravelAppDelegate.h"
#include "browser/ImageBrowserView.h"
#include "platform/qt/PictureFile.h"
#include "platform/qt/QtThumbnails.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace {

using namespace moravel;

/// Processor time of this thread, which other programs do not lengthen.
double processorMilliseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double milliseconds(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

void runUntil(const std::function<bool()> &done)
{
    QTimer tick;
    tick.start(1);
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void rest(int ms)
{
    QElapsedTimer clock;
    clock.start();
    runUntil([&] { return clock.elapsed() >= ms; });
}

/// Counts the paintings of the image browser that showed pictures.
class Paints : public QObject
{
public:
    explicit Paints(ImageBrowserView &view) : m_view(view)
    {
        view.viewport()->installEventFilter(this);
    }

    int count = 0;

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_view.model()->rowCount() > 0)
            QMetaObject::invokeMethod(
                this, [this] { ++count; }, Qt::QueuedConnection);
        return false;
    }

    ImageBrowserView &m_view;
};

/// Beats in the main loop and notes the longest time between two beats.
class Heart
{
public:
    Heart()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_clock.start();
        m_timer.start(2);
    }

    /// Returns the longest gap since the last call.
    double takeGap()
    {
        beat();
        return std::exchange(m_gap, 0);
    }

private:
    void beat()
    {
        m_gap = std::max(m_gap, milliseconds(m_clock));
        m_clock.start();
    }

    QElapsedTimer m_clock;
    double m_gap = 0;
    QTimer m_timer;
};

struct Figures
{
    std::vector<double> values;

    void print(const char *what)
    {
        std::sort(values.begin(), values.end());
        std::printf("%-28s median %6.1f ms, 99 %% %6.1f ms, worst %6.1f ms (%zu)\n", what,
                    values[values.size() / 2], values[values.size() * 99 / 100], values.back(),
                    values.size());
    }
};

bool screenIsFull(const ImageBrowserView &view)
{
    const ImageGrid::Span visible = view.visibleItems();
    for (int i = visible.first; i <= visible.last; ++i) {
        if (!view.model()->index(i, 0).data(Qt::DecorationRole).isValid())
            return false;
    }
    return visible.last >= visible.first;
}

void type(BrowserWindow &window, ImageBrowserView &view)
{
    auto *field = window.findChild<QLineEdit *>(QStringLiteral("searchField"));
    Figures keys;
    for (const char *text : {"harbour at dawn", "nebuleuse", "ÆGEAN SEA", "12345", "lodz aurora"}) {
        const QString word = QString::fromUtf8(text);
        for (int i = 0; i < 2 * word.size(); ++i) {
            const bool back = i >= word.size();
            QKeyEvent key(QEvent::KeyPress, back ? Qt::Key_Backspace : Qt::Key_unknown,
                          Qt::NoModifier, back ? QString() : QString(word[i]));
            QElapsedTimer clock;
            clock.start();
            QCoreApplication::sendEvent(field, &key);
            view.viewport()->repaint(); // also where the same rows pass
            QCoreApplication::processEvents();
            keys.values.push_back(milliseconds(clock));
        }
    }
    keys.print("keystroke to painted grid");
}

void scroll(ImageBrowserView &view, const char *what, int step, int frames)
{
    Figures figures;
    Figures processor;
    QScrollBar *bar = view.verticalScrollBar();
    const double stolen = bench::stolenMilliseconds();
    bar->setValue(0);
    for (int i = 0; i < frames; ++i) {
        const double before = processorMilliseconds();
        QElapsedTimer clock;
        clock.start();
        bar->setValue(bar->value() + step);
        QCoreApplication::processEvents();
        figures.values.push_back(milliseconds(clock));
        processor.values.push_back(processorMilliseconds() - before);
        rest(std::max(0, 16 - static_cast<int>(milliseconds(clock))));
    }
    figures.print(what);
    processor.print("  of it processor time");
    std::printf("  the host took away meanwhile %.0f ms\n", bench::stolenMilliseconds() - stolen);
}

void showAll(ImageBrowserView &view)
{
    QElapsedTimer clock;
    clock.start();
    QScrollBar *bar = view.verticalScrollBar();
    for (bar->setValue(0);; bar->setValue(bar->value() + view.viewport()->height())) {
        runUntil([&] { return screenIsFull(view); });
        if (bar->value() == bar->maximum())
            break;
    }
    std::printf("all pictures shown after      %.0f ms\n", milliseconds(clock));
}

/// The bare decoding of all pictures, in as many threads beside an idle main loop, to compare with.
void decodeAll(const ImageBrowserView &view)
{
    QThreadPool pool;
    QElapsedTimer clock;
    clock.start();
    const std::atomic<bool> stop = false;
    std::atomic<int> left = view.model()->rowCount();
    Heart heart;
    for (int i = 0; i < view.model()->rowCount(); ++i) {
        const auto &model = static_cast<const BrowserModel &>(*view.model());
        pool.start([path = model.itemAtIndex(i).imageRepresentation(), &stop, &left] {
            (void)decodePicture(path, {256, 256}, stop);
            --left;
        });
    }
    runUntil([&] { return left == 0; });
    std::printf("all pictures merely decoded   %.0f ms, longest gap meanwhile %.0f ms\n",
                milliseconds(clock), heart.takeGap());
}

void remove(Browser &browser, int count)
{
    BrowserWindow &window = browser.browserWindow();
    QList<int> items(count);
    std::iota(items.begin(), items.end(), 0);
    browser.actions().removeItemsAtIndexes(items);
    rest(500);
    auto *sheet = window.findChild<QMessageBox *>(QStringLiteral("deleteSheet"));
    const BrowserRow *shown = browser.images().rowAt(count);
    Paints paints(window.imageBrowser());
    Heart heart;
    QElapsedTimer clock;
    clock.start();
    sheet->buttons().first()->click();
    runUntil([&] { return paints.count > 0; });
    std::printf("%d deleted: painted without them after %.0f ms", count, milliseconds(clock));
    runUntil([&] { return browser.images().rowAt(0) != shown; }); // of the collection read anew
    rest(500);
    std::printf(", longest gap of the main loop %.0f ms\n", heart.takeGap());
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    bench::RealPlatform platform;
    QtThumbnails thumbnails;
    MoravelAppDelegate delegate(platform.lend(), std::nullopt,
                                platform.shareSetup(QStringLiteral("http://127.0.0.1:9/potd")), {},
                                &thumbnails);
    delegate.applicationWillFinishLaunching();
    delegate.window().show();
    if (app.arguments().value(1) == u"stay") {
        QApplication::setCursorFlashTime(0); // a screen that blinks never comes to rest
        delegate.browser()->browser().picBrowser();
        delegate.browser()->browser().browserWindow().resize(900, 600); // as the others
        return QApplication::exec();
    }
    delegate.browser()->setTrash([](const QStringList &paths, const std::function<void()> &done) {
        for (const QString &path : paths)
            QFile::remove(path);
        done();
    });
    rest(500);
    const double idle = bench::memoryMb("VmRSS");
    Browser &browser = delegate.browser()->browser();
    Heart heart;
    const double stolen = bench::stolenMilliseconds();
    QElapsedTimer clock;
    clock.start();
    browser.picBrowser();
    BrowserWindow &window = browser.browserWindow();
    ImageBrowserView &view = window.imageBrowser();
    Paints paints(view);
    runUntil([&] { return paints.count > 0; });
    std::printf("%d pictures; first painted screen after %.0f ms\n", view.model()->rowCount(),
                milliseconds(clock));
    runUntil([&] { return screenIsFull(view); });
    std::printf("first screenful of thumbnails %.0f ms, longest gap of the main loop %.0f ms; "
                "taken away %.0f ms\n",
                milliseconds(clock), heart.takeGap(), bench::stolenMilliseconds() - stolen);
    if (app.arguments().value(1) == u"delete") {
        remove(browser, app.arguments().value(2).toInt());
        return 0;
    }
    if (app.arguments().value(1) == u"all")
        showAll(view);
    rest(1000);
    std::printf("longest gap since             %.0f ms\n", heart.takeGap());
    if (app.arguments().value(1) == u"all")
        decodeAll(view);
    type(window, view);
    scroll(view, "frame, line by line", 60, 300);
    scroll(view, "frame, end to end", std::max(1, view.verticalScrollBar()->maximum() / 300), 300);
    rest(2000);
    std::printf("memory over the idle window   %.0f MB\n", bench::memoryMb("VmRSS") - idle);
    return 0;
}
