// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "desktop/DesktopWorld.h"
#include "platform/linux/desktops/FullScreenWatch.h"

#include <QPainter>
#include <QRasterWindow>

namespace moravel::testing {

namespace {

/// Counts the lines of the log that contain a text, and hands them on.
class LogCounter
{
public:
    explicit LogCounter(const QString &part)
    {
        s_part = part;
        s_count = 0;
        s_next = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                s_count += text.contains(s_part);
                s_next(type, context, text);
            });
    }

    ~LogCounter() { qInstallMessageHandler(s_next); }

    static int count() { return s_count; }

private:
    static inline QString s_part;
    static inline int s_count = 0;
    static inline QtMessageHandler s_next = nullptr;
};

bool isNear(const QColor &a, const QColor &b)
{
    const auto near = [](int x, int y) { return std::abs(x - y) < 9; };
    return near(a.red(), b.red()) && near(a.green(), b.green()) && near(a.blue(), b.blue());
}

QColor pixel(const QImage &image, int screen, QPoint at)
{
    const QPoint place = at + QPoint(screen * 800, 0);
    return image.rect().contains(place) ? image.pixelColor(place) : QColor();
}

} // namespace

DesktopLab::DesktopLab() = default;
DesktopLab::~DesktopLab() = default;

void DesktopLab::SetUp()
{
    m_desktop = make();
    ASSERT_TRUE(m_desktop);
    MORAVEL_WAIT(m_desktop->screens().size() == 2);
    first = m_desktop->screens()[0].id;
    second = m_desktop->screens()[1].id;
}

void DesktopLab::setOutside(const QString &)
{
    FAIL() << "nothing else sets the picture here";
}

void DesktopLab::plug(bool in)
{
    QStringList arguments{QStringLiteral("--output"), second};
    if (in)
        arguments << QStringLiteral("--mode") << QStringLiteral("800x600")
                  << QStringLiteral("--pos") << QStringLiteral("800x0");
    else
        arguments << QStringLiteral("--off");
    EXPECT_EQ(run(QStringLiteral("xrandr"), arguments), 0);
}

int DesktopLab::run(const QString &program, const QStringList &arguments)
{
    return QProcess::execute(program, arguments);
}

QString DesktopLab::output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput().trimmed());
}

std::unique_ptr<DesktopPictures> DesktopLab::make()
{
    return makeDesktopPictures({m_files, s_support.path()});
}

QString DesktopLab::picture(const QString &name, QSize size, const QColor &colour) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    const int border = size.width() / 10;
    QPainter(&image).fillRect(image.rect().adjusted(border, 0, -border, 0), colour);
    const QString path = m_folder.filePath(name);
    EXPECT_TRUE(image.save(path, "PNG"));
    return path;
}

QString DesktopLab::set(const QString &path, const QString &screen, DesktopScaling scaling)
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
        return QStringLiteral("no answer");
    return *answer ? QString() : answer->error().description;
}

QString DesktopLab::shown(const QString &screen) const
{
    return pathOfUrl(m_desktop->desktopImageUrl(screen));
}

QImage DesktopLab::shot() const
{
    if (QStringList redraw = QProcess::splitCommand(qEnvironmentVariable("LAB_REDRAW"));
        !redraw.isEmpty())
        output(redraw.takeFirst(), redraw);
    QStringList command = QProcess::splitCommand(qEnvironmentVariable("LAB_SHOT"));
    if (command.isEmpty())
        return QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1600, 600).toImage();
    const QString file = m_folder.filePath(QStringLiteral("shot.png"));
    QFile::remove(file);
    const QString program = command.takeFirst();
    output(program, command << file);
    return QImage(file);
}

bool DesktopLab::within(int milliseconds, const std::function<bool()> &condition)
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

// The program's clock takes part of a longer stall only: that is the machine's, not the program's.
void DesktopLab::drive()
{
    const qint64 step = std::min<qint64>(m_clock.restart(), 50);
    m_passed += step;
    if (!m_program)
        return;
    m_program->images.deliver();
    m_program->loop.advance(double(step) / 1000);
}

bool DesktopLab::seen(int screen, QPoint at, const QColor &colour, int milliseconds)
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

bool DesktopLab::seenOnAll(const QColor &colour, int milliseconds)
{
    return std::all_of(m_painted.begin(), m_painted.end(),
                       [&](int screen) { return seen(screen, Middle, colour, milliseconds); });
}

void DesktopLab::startProgram(bool allScreens)
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

void DesktopLab::setsOneScreenAndBoth()
{
    const bool perScreen = m_desktop->abilities().perScreen;
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    for (const QString &screen : {first, second})
        ASSERT_EQ(set(red, screen, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seenOnAll(Qt::red));
    ASSERT_EQ(set(blue, second, DesktopScaling::Fill), QString());
    EXPECT_EQ(shown(second), blue);
    EXPECT_EQ(shown(first), perScreen ? red : blue);
    if (!perScreen) {
        EXPECT_TRUE(seenOnAll(Qt::blue));
        return;
    }
    EXPECT_TRUE(seen(1, Middle, Qt::blue) && seen(0, Middle, Qt::red));
    EXPECT_NE(set(red, QStringLiteral("NONE-9"), DesktopScaling::Fill), QString());
}

void DesktopLab::laysOutEachSizing()
{
    using enum DesktopScaling;

    const struct
    {
        QSize picture;
        DesktopScaling scaling;
        QPoint inside; ///< A place that has the picture's colour,
        QPoint outside; ///< and one that has not: the border, or the desktop's own background.
    } table[] = {
        {{200, 100}, Centred, {330, 300}, {305, 300}}, {{200, 100}, Fit, {100, 150}, {50, 150}},
        {{200, 100}, Fill, {10, 60}, {-1, -1}},        {{1000, 900}, Centred, {10, 60}, {-1, -1}},
        {{1000, 900}, Fit, {150, 60}, {100, 300}},     {{1000, 900}, Fill, {100, 60}, {40, 300}},
        {{1600, 200}, Centred, {10, 300}, {400, 150}}, {{1600, 200}, Fit, {100, 300}, {400, 220}},
        {{1600, 200}, Fill, {10, 60}, {-1, -1}},       {{300, 2000}, Fit, {400, 60}, {100, 300}},
    };

    int i = 0;
    for (const auto &row : table) {
        SCOPED_TRACE(i);
        if (m_shrinksCentred && row.scaling == Centred && row.picture.width() > 800)
            continue;
        const QColor colour = i % 2 ? QColor(0, 200, 0) : QColor(200, 0, 200);
        const QString path = picture(QStringLiteral("p%1.png").arg(i++), row.picture, colour);
        ASSERT_EQ(set(path, first, row.scaling), QString());
        EXPECT_TRUE(seen(0, row.inside, colour));
        if (row.outside.x() >= 0) {
            EXPECT_TRUE(
                within(20'000, [&] { return !isNear(pixel(shot(), 0, row.outside), colour); }));
        }
    }
}

void DesktopLab::takesOddNames()
{
    int hue = 0;
    for (const QString &name : {QStringLiteral("a b.png"), QStringLiteral("it's \"q\".png"),
                                QStringLiteral("%41.png"), QStringLiteral("\u00fcml.png"),
                                QStringLiteral("-o #?&.png"), QStringLiteral("two\nlines.png")}) {
        SCOPED_TRACE(qPrintable(name));
        const QColor colour = QColor::fromHsv(hue += 50, 255, 200);
        const QString path = picture(name, colour);
        const QString before = shown(second);
        const QString error = set(path, second, DesktopScaling::Fill);
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

void DesktopLab::repaintsARewrittenFile()
{
    const QString name = QStringLiteral("same.png");
    for (const QColor &colour : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::green)}) {
        const QString path = picture(name, colour);
        ASSERT_EQ(set(path, first, DesktopScaling::Fill), QString());
        EXPECT_EQ(shown(first), path);
        EXPECT_TRUE(seen(0, Middle, colour));
    }
}

void DesktopLab::noticesChangesFromOutside()
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    setOutside(blue);
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == blue; }));
    EXPECT_TRUE(seen(0, Middle, Qt::blue));

    startProgram(false);
    const ThumbView &cell = m_program->cells.desktopThumb();
    EXPECT_TRUE(within(1'000, [&] { return cell.picPath() == blue; }));
    setOutside(red);
    EXPECT_TRUE(within(1'000, [&] { return cell.picPath() == red; }));
}

void DesktopLab::tellsOnceThatOnePictureServesAll()
{
    const LogCounter lines(QStringLiteral("one picture for all screens"));
    startProgram(false);
    for (const QColor &colour : {QColor(Qt::red), QColor(Qt::blue)}) {
        const QString path = picture(colour.name().mid(1) + QStringLiteral(".png"), colour);
        m_program->desktop->setter().setDesktopToFile(path);
        EXPECT_TRUE(
            within(5'000, [&] { return m_program->desktop->currentDesktopPath() == path; }));
        EXPECT_TRUE(seenOnAll(colour));
    }
    EXPECT_EQ(lines.count(), 1);
}

void DesktopLab::followsThePluggedScreen()
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
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

void DesktopLab::comesBackAfterRestart(const std::function<void()> &restart)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    startProgram(true);
    m_program->desktop->setter().setDesktopToFile(red);
    EXPECT_TRUE(seenOnAll(Qt::red));
    restart();
    EXPECT_TRUE(seenOnAll(Qt::red, 2'000));
    EXPECT_TRUE(within(5'000, [&] { return shown(first) == red; }));
}

void DesktopLab::restart()
{
    ASSERT_EQ(run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("restart")}), 0);
}

void DesktopLab::knowsWhoFillsTheScreen()
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

} // namespace moravel::testing
