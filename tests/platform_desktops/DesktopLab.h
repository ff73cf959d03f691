// SPDX-License-Identifier: MIT
// What the tests against real desktops share. They run inside a lab of tests/labs.
#pragma once

#include "support/Test.h"

#include "desktop/DesktopWorld.h"
#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/FullScreenWatch.h"

#include <QColor>
#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QRasterWindow>
#include <QScreen>

namespace moravel::testing {

inline const QPoint Middle(400, 300);
constexpr auto Fill = DesktopScaling::Fill;

inline bool isNear(const QColor &a, const QColor &b)
{
    const auto near = [](int x, int y) { return std::abs(x - y) < 9; };
    return near(a.red(), b.red()) && near(a.green(), b.green()) && near(a.blue(), b.blue());
}

inline QColor pixel(const QImage &image, int screen, QPoint at)
{
    const QPoint place = at + QPoint(screen * 800, 0);
    return image.rect().contains(place) ? image.pixelColor(place) : QColor();
}

/// Two screens of 800x600 side by side. Panels may cover the uppermost and the lowest 50 pixels.
struct DesktopLab : ::testing::Test
{
    void SetUp() override
    {
        m_desktop = make();
        ASSERT_TRUE(m_desktop);
        MORAVEL_WAIT(m_desktop->screens().size() == 2);
        first = m_desktop->screens()[0].id;
        second = m_desktop->screens()[1].id;
        red = picture(u"red.png"_s, Qt::red);
        blue = picture(u"blue.png"_s, Qt::blue);
    }

    // What differs between desktops ------------------------------------------------------------

    /// Sets the picture of the first screen as the desktop's own tools would.
    virtual void setOutside(const QString &) { FAIL() << "nothing else sets the picture here"; }

    /// Unplugs the second screen, or plugs it in again.
    virtual void plug(bool in)
    {
        const QString mode = in ? u"--mode 800x600 --pos 800x0"_s : u"--off"_s;
        EXPECT_EQ(run(u"xrandr --output %1 %2"_s.arg(second, mode)), 0);
    }

    QList<int> m_painted{0, 1}; ///< The screens that the desktop paints at all.
    bool m_shrinksCentred = false; ///< Fits a picture that is centred and larger than the screen.
    QStringList m_refused; ///< The odd names that it cannot keep.

    // Tools ------------------------------------------------------------------------------------

    /// Runs a command line, split at its spaces, with more arguments.
    static int run(const QString &line, const QStringList &more = {})
    {
        QStringList words = QProcess::splitCommand(line);
        const QString program = words.takeFirst();
        return QProcess::execute(program, words + more);
    }

    /// What it prints, without white space around it.
    static QString output(const QString &line, const QStringList &more = {})
    {
        QProcess process;
        QStringList words = QProcess::splitCommand(line);
        const QString program = words.takeFirst();
        process.start(program, words + more);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput().trimmed());
    }

    std::unique_ptr<DesktopPictures> make()
    {
        return makeDesktopPictures({m_files, s_support.path()});
    }

    /// Writes a picture of one colour with a border of white, a tenth of the width on either side.
    QString picture(const QString &name, QSize size, const QColor &colour) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        const int border = size.width() / 10;
        QPainter(&image).fillRect(image.rect().adjusted(border, 0, -border, 0), colour);
        const QString path = m_folder.filePath(name);
        EXPECT_TRUE(image.save(path, "PNG"));
        return path;
    }

    QString picture(const QString &name, const QColor &colour) const
    {
        return picture(name, {900, 700}, colour);
    }

    /// Sets a picture and waits for the answer; returns the error, empty for none.
    QString set(const QString &path, const QString &screen, DesktopScaling scaling)
    {
        std::optional<tl::expected<void, DesktopError>> answer;
        bool inside = true;
        m_desktop->setDesktopImageUrl(fileUrl(path), screen, scaling, [&](const auto &result) {
            EXPECT_FALSE(inside);
            answer = result;
        });
        inside = false;
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        if (!answer)
            return u"no answer"_s;
        return *answer ? QString() : answer->error().description;
    }

    QString shown(const QString &screen) const
    {
        return pathOfUrl(m_desktop->desktopImageUrl(screen));
    }

    /// A screenshot of all screens: by the command in LAB_SHOT, which takes a file name, else of the X
    /// display. A shell that paints nothing while nothing moves is woken by LAB_REDRAW.
    virtual QImage shot() const
    {
        if (const QString redraw = qEnvironmentVariable("LAB_REDRAW"); !redraw.isEmpty())
            output(redraw);
        const QString command = qEnvironmentVariable("LAB_SHOT");
        if (command.isEmpty())
            return QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1600, 600).toImage();
        const QString file = m_folder.filePath(u"shot.png"_s);
        QFile::remove(file);
        output(command, {file});
        return QImage(file);
    }

    /// Waits until a pixel of the first (0) or second (1) screen has a colour.
    bool seen(int screen, QPoint at, const QColor &colour, int milliseconds = 20'000)
    {
        QColor is;
        const bool ok = within(milliseconds, [&] {
            is = pixel(shot(), screen, at);
            return is.isValid() && isNear(is, colour);
        });
        if (!ok)
            ADD_FAILURE() << "screen " << screen << " shows " << qPrintable(is.name());
        return ok;
    }

    /// The same for the middle of all painted screens.
    bool seenOnAll(const QColor &colour, int milliseconds = 20'000)
    {
        return std::all_of(m_painted.begin(), m_painted.end(),
                           [&](int screen) { return seen(screen, Middle, colour, milliseconds); });
    }

    /// Runs the event loop, and the program's clock if it is there, until a condition holds. The time
    /// that a busy machine takes away from this process does not count.
    bool within(int milliseconds, const std::function<bool()> &condition)
    {
        const qint64 end = m_passed + milliseconds;
        bool ok = false;
        m_clock.restart();
        waitFor([&] {
            drive();
            ok = ok || condition();
            return ok || m_passed >= end;
        });
        return ok;
    }

    /// Puts the program's desktop management onto the desktop, for all screens or the main one.
    void startProgram(bool allScreens)
    {
        m_program = std::make_unique<DesktopWorld>();
        DesktopWorld &world = *m_program;
        world.ports.pixelSize = {};
        world.desktop = std::make_unique<DesktopManagement>(
            DesktopContext{world.platform, *m_desktop, world.dates, world.preferences, world.cells,
                           world.folders, world.records, world.links, world.ports});
        if (allScreens)
            world.preferences.setDesktopOptions(Preferences::AllScreensTag);
        world.desktop->start();
    }

    // What every desktop must do ---------------------------------------------------------------

    void setsOneScreenAndBoth()
    {
        const bool perScreen = m_desktop->abilities().perScreen;
        for (const QString &screen : {first, second})
            ASSERT_EQ(set(red, screen, Fill), QString());
        EXPECT_TRUE(seenOnAll(Qt::red));
        ASSERT_EQ(set(blue, second, Fill), QString());
        EXPECT_EQ(shown(second), blue);
        EXPECT_EQ(shown(first), perScreen ? red : blue);
        if (!perScreen) {
            EXPECT_TRUE(seenOnAll(Qt::blue));
            return tellsOnceThatOnePictureServesAll();
        }
        EXPECT_TRUE(seen(1, Middle, Qt::blue) && seen(0, Middle, Qt::red));
        EXPECT_NE(set(red, u"NONE-9"_s, Fill), QString());
    }

    void laysOutEachSizing()
    {
        using enum DesktopScaling;

        // A place that has the picture's colour, and one that has not: the border, or the desktop's background.
        const Table<QSize, DesktopScaling, QPoint, QPoint> table{
            {{200, 100}, Centred, {330, 300}, {305, 300}},
            {{200, 100}, Fit, {100, 150}, {50, 150}},
            {{200, 100}, Fill, {10, 60}, {-1, -1}},
            {{1000, 900}, Centred, {10, 60}, {-1, -1}},
            {{1000, 900}, Fit, {150, 60}, {100, 300}},
            {{1000, 900}, Fill, {100, 60}, {40, 300}},
            {{1600, 200}, Centred, {10, 300}, {400, 150}},
            {{1600, 200}, Fit, {100, 300}, {400, 220}},
            {{1600, 200}, Fill, {10, 60}, {-1, -1}},
            {{300, 2000}, Fit, {400, 60}, {100, 300}},
        };

        int i = 0;
        for (const auto &[size, scaling, inside, outside] : table) {
            SCOPED_TRACE(i);
            if (m_shrinksCentred && scaling == Centred && size.width() > 800)
                continue;
            const QColor colour = i % 2 ? QColor(0, 200, 0) : QColor(200, 0, 200);
            const QString path = picture(u"p%1.png"_s.arg(i++), size, colour);
            ASSERT_EQ(set(path, first, scaling), QString());
            EXPECT_TRUE(seen(0, inside, colour));
            const auto leavesBorder = [&] { return !isNear(pixel(shot(), 0, outside), colour); };
            EXPECT_TRUE(outside.x() < 0 || within(20'000, leavesBorder));
        }
    }

    void takesOddNames()
    {
        int hue = 0;
        for (const QString &name : {u"a b.png"_s, u"it's \"q\".png"_s, u"%41.png"_s,
                                    u"\u00fcml.png"_s, u"-o #?&.png"_s, u"two\nlines.png"_s}) {
            SCOPED_TRACE(qPrintable(name));
            const QColor colour = QColor::fromHsv(hue += 50, 255, 200);
            const QString path = picture(name, colour);
            const QString before = shown(second);
            const QString error = set(path, second, Fill);
            if (m_refused.contains(name)) {
                EXPECT_NE(error, QString());
                EXPECT_EQ(shown(second), before);
                continue;
            }
            ASSERT_EQ(error, QString());
            EXPECT_EQ(shown(second), path);
            EXPECT_TRUE(seen(m_painted.last(), Middle, colour));
        }
    }

    /// The same path with another picture.
    void repaintsARewrittenFile()
    {
        const QString name = u"same.png"_s;
        for (const QColor &colour : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::green)}) {
            const QString path = picture(name, colour);
            ASSERT_EQ(set(path, first, Fill), QString());
            EXPECT_EQ(shown(first), path);
            EXPECT_TRUE(seen(0, Middle, colour));
        }
    }

    /// Also in the program's desktop cell.
    void noticesChangesFromOutside()
    {
        ASSERT_EQ(set(red, first, Fill), QString());
        setOutside(blue);
        EXPECT_TRUE(within(1'000, [&] { return shown(first) == blue; }));
        EXPECT_TRUE(seen(0, Middle, Qt::blue));

        startProgram(false);
        const ThumbView &cell = m_program->cells.desktopThumb();
        EXPECT_TRUE(within(1'000, [&] { return cell.picPath() == blue; }));
        setOutside(red);
        EXPECT_TRUE(within(1'000, [&] { return cell.picPath() == red; }));
    }

    /// A desktop with one picture for all screens; the program says so once.
    void tellsOnceThatOnePictureServesAll()
    {
        static int lines;
        static QtMessageHandler next;
        lines = 0;
        next = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                lines += text.contains("one picture for all screens"_L1);
                next(type, context, text);
            });
        startProgram(false);
        for (const auto &[path, colour] :
             Table<QString, QColor>{{red, Qt::red}, {blue, Qt::blue}}) {
            m_program->desktop->setter().setDesktopToFile(path);
            EXPECT_TRUE(
                within(5'000, [&] { return m_program->desktop->currentDesktopPath() == path; }));
            EXPECT_TRUE(seenOnAll(colour));
        }
        qInstallMessageHandler(next);
        EXPECT_EQ(lines, 1);
    }

    void followsThePluggedScreen()
    {
        startProgram(true);
        m_program->desktop->setter().setDesktopToFile(red);
        EXPECT_TRUE(seenOnAll(Qt::red));
        plug(false);
        EXPECT_TRUE(within(20'000, [&] { return m_desktop->screens().size() == 1; }));
        m_program->desktop->setter().setDesktopToFile(blue);
        EXPECT_TRUE(seen(0, Middle, Qt::blue));
        plug(true);
        EXPECT_TRUE(within(20'000, [&] { return m_desktop->screens().size() == 2; }));
        EXPECT_TRUE(seenOnAll(Qt::blue));
        EXPECT_TRUE(within(5'000, [&] { return shown(second) == blue; }));
    }

    /// After the lab's own function "restart", which returns when the desktop is there again.
    void comesBackAfterRestart()
    {
        startProgram(true);
        m_program->desktop->setter().setDesktopToFile(red);
        EXPECT_TRUE(seenOnAll(Qt::red));
        ASSERT_EQ(run(u"bash -c restart"_s), 0);
        EXPECT_TRUE(seenOnAll(Qt::red, 2'000));
        EXPECT_TRUE(within(5'000, [&] { return shown(first) == red; }));
    }

    void knowsWhoFillsTheScreen()
    {
        const auto watch = FullScreenWatch::start(0); // to which this process is another program
        const auto own = FullScreenWatch::start();
        ASSERT_TRUE(watch && own);
        own->onChanged = [] { ADD_FAILURE() << "our own window"; };
        QRasterWindow window;
        for (const bool closes : {false, true}) {
            window.showFullScreen();
            // Before it knows of its own size, the toolkit takes back nothing.
            MORAVEL_WAIT(watch->isFullScreen() && window.height() == 600);
            const auto later = FullScreenWatch::start(1);
            MORAVEL_WAIT(later->isFullScreen());
            if (closes)
                window.close();
            else
                window.showNormal();
            MORAVEL_WAIT(!watch->isFullScreen());
        }
    }

    QTemporaryDir m_folder;
    static inline QTemporaryDir s_support; ///< Kept between the tests, as between two starts.
    PosixFiles m_files;
    std::unique_ptr<DesktopPictures> m_desktop;
    std::unique_ptr<DesktopWorld> m_program; ///< Null until startProgram().
    QString first, second;
    QString red, blue; ///< Paths of pictures.

private:
    /// The program's clock takes part of a longer stall only: that is the machine's, not the program's.
    void drive()
    {
        const qint64 step = std::min<qint64>(m_clock.restart(), 50);
        m_passed += step;
        if (!m_program)
            return;
        m_program->images.deliver();
        m_program->loop.advance(double(step) / 1000);
    }

    QElapsedTimer m_clock;
    qint64 m_passed = 0; ///< Milliseconds.
};

} // namespace moravel::testing

/// Makes a test of what every desktop must do.
#define DESKTOP_TEST(Lab, name)                                                                    \
    TEST_F(Lab, name)                                                                              \
    {                                                                                              \
        name();                                                                                    \
    }

/// What every desktop does, whether or not it can be changed from outside, or restarted.
#define DESKTOP_TESTS(Lab)                                                                         \
    DESKTOP_TEST(Lab, setsOneScreenAndBoth)                                                        \
    DESKTOP_TEST(Lab, laysOutEachSizing)                                                           \
    DESKTOP_TEST(Lab, takesOddNames)                                                               \
    DESKTOP_TEST(Lab, repaintsARewrittenFile)
