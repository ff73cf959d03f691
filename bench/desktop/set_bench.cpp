// SPDX-License-Identifier: MIT
// set_bench TOOL ROUNDS WIDTHxHEIGHT…: from the call until both screens (800x600, side by side) show another
// picture, by our backend and by the desktop's own tool in turn. Prints medians, their ratio, and the peak of
// memory above idle. Runs inside a desktop on X.
#include "bench/ProcessMemory.h"

#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/FileUrls.h"
#include "platform/qt/QtImages.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

using namespace moravel;

namespace {

const QColor Base(0, 0, 255);
constexpr qint64 PatienceMs = 20'000;

const QHash<QString, QString> &tools()
{
    static const QHash<QString, QString> commands{
        {QStringLiteral("xwallpaper"), QStringLiteral("exec xwallpaper --zoom \"$1\"")},
        {QStringLiteral("gsettings"),
         QStringLiteral(
             "gsettings set org.gnome.desktop.background picture-uri \"file://$1\"; "
             "exec gsettings set org.gnome.desktop.background picture-uri-dark \"file://$1\"")},
        {QStringLiteral("xfconf-query"),
         QStringLiteral(
             "for m in DUMMY0 DUMMY1; do xfconf-query -c xfce4-desktop -n -t string -s \"$1\" -p "
             "/backdrop/screen0/monitor$m/workspace0/last-image; done")},
        {QStringLiteral("evaluateScript"),
         QStringLiteral(
             "exec gdbus call --session -d org.kde.plasmashell -o /PlasmaShell -m "
             "org.kde.PlasmaShell.evaluateScript \"desktops().forEach(function(d) { "
             "d.wallpaperPlugin = "
             "'org.kde.image'; d.currentConfigGroup = ['Wallpaper', 'org.kde.image', 'General']; "
             "d.writeConfig('Image', 'file://$1'); d.writeConfig('FillMode', 2) })\" >/dev/null")},
    };
    return commands;
}

bool isBase(int x)
{
    const QImage pixel = QGuiApplication::primaryScreen()->grabWindow(0, x, 300, 1, 1).toImage();
    const QColor is = pixel.pixelColor(0, 0);
    return std::abs(is.red() - Base.red()) + std::abs(is.green() - Base.green())
        + std::abs(is.blue() - Base.blue())
        < 30;
}

/// Lets the program work until both screens show the base picture, or neither does. Returns the time in ms.
double until(bool base, const QElapsedTimer &timer)
{
    while (timer.elapsed() < PatienceMs) {
        QCoreApplication::processEvents();
        if (isBase(400) == base && isBase(1200) == base)
            return double(timer.nsecsElapsed()) / 1e6;
        QThread::usleep(300);
    }
    std::fprintf(stderr, "set_bench: the screens do not change\n");
    std::exit(1);
}

void pause(qint64 ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
}

class Bench
{
public:
    explicit Bench(const QString &tool) : m_tool(tools().value(tool))
    {
        m_desktop = makeDesktopPictures({m_files, m_folder.filePath(QStringLiteral("support"))});
        if (!m_desktop || m_tool.isEmpty())
            qFatal("no desktop, or an unknown tool");
        pause(2'000);
        QImage image(800, 600, QImage::Format_RGB32);
        image.fill(Base);
        for (const char *name : {"base0.png", "base1.png"})
            image.save(m_folder.filePath(QLatin1String(name)));
    }

    double ours(const QString &path)
    {
        QElapsedTimer timer;
        timer.start();
        m_images.size(path, [this, path](QSize) {
            for (const DesktopScreen &screen : m_desktop->screens()) {
                if (screen.isMain || m_desktop->abilities().perScreen)
                    m_desktop->setDesktopImageUrl(
                        fileUrl(path), screen.id, DesktopScaling::Fill, [](const auto &result) {
                            if (!result)
                                qFatal("%s", qPrintable(result.error().description));
                        });
            }
        });
        return until(m_wantsBase, timer);
    }

    double theirs(const QString &path) const
    {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.start(QStringLiteral("sh"),
                      {QStringLiteral("-c"), m_tool, QStringLiteral("sh"), path});
        const double ms = until(false, timer);
        process.waitForFinished();
        return ms;
    }

    void backToBase()
    {
        m_wantsBase = true;
        ours(m_folder.filePath(QStringLiteral("base%1.png").arg(++m_turn % 2)));
        m_wantsBase = false;
        pause(1'500); // fades and late work of the desktop
    }

    void run(QSize size, int rounds)
    {
        QList<double> mine, others;
        double peak = 0;
        for (int i = 0; i < rounds; ++i) {
            backToBase();
            const QString path = picture(size, 2 * i);
            const double idle = bench::memoryMb("VmRSS");
            bench::forgetPeak();
            mine.append(ours(path));
            pause(300);
            peak = std::max(peak, bench::memoryMb("VmHWM") - idle);
            backToBase();
            const QString other = picture(size, 2 * i + 1);
            others.append(theirs(other));
            pause(1'000);
        }
        rusage children = {};
        getrusage(RUSAGE_CHILDREN, &children);
        std::sort(mine.begin(), mine.end());
        std::sort(others.begin(), others.end());
        const double a = mine[rounds / 2], b = others[rounds / 2];
        std::printf(
            "%5dx%-5d ours %7.1f ms   tool %7.1f ms   ratio %.2f   peak above idle %5.1f MB "
            "(tool's process: %.1f MB)\n",
            size.width(), size.height(), a, b, a / b, peak, double(children.ru_maxrss) / 1024);
        std::fflush(stdout);
    }

private:
    /// A fresh file each time, since desktops keep what they have decoded.
    QString picture(QSize size, int number) const
    {
        const QString first = m_folder.filePath(QStringLiteral("p%1.jpg").arg(size.width()));
        if (!QFile::exists(first)) {
            // Hills of some detail, without blue, so that no pixel looks like the base.
            QImage image(size, QImage::Format_RGB32);
            quint32 noise = 1;
            for (int y = 0; y < size.height(); ++y) {
                auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
                for (int x = 0; x < size.width(); ++x) {
                    noise = noise * 1664525 + 1013904223;
                    line[x] = qRgb(60 + x * 120 / size.width() + int(noise >> 28),
                                   80 + y * 120 / size.height() + int(noise >> 27), 20);
                }
            }
            image.save(first, "jpg", 90);
        }
        const QString copy =
            m_folder.filePath(QStringLiteral("c%1_%2.jpg").arg(size.width()).arg(number));
        QFile::copy(first, copy);
        return copy;
    }

    QString m_tool;
    QTemporaryDir m_folder;
    PosixFiles m_files;
    QtImages m_images;
    std::unique_ptr<DesktopPictures> m_desktop;
    bool m_wantsBase = false;
    int m_turn = 0;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Bench bench(arguments.value(1));
    for (const QString &size : arguments.mid(3))
        bench.run({size.section(u'x', 0, 0).toInt(), size.section(u'x', 1).toInt()},
                  arguments.value(2).toInt());
}
