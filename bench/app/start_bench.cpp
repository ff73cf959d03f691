// SPDX-License-Identifier: MIT
// start_bench moravel|bare: starts the application, or a bare main window, and ends at the first painted
// frame. scripts/bench-start times both in turn.
#include "RealPlatform.h"

#include "app/MoravelAppDelegate.h"

#include <QApplication>

namespace {

class EndAtFirstPaint : public QObject
{
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_painted) {
            m_painted = true;
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
        return QObject::eventFilter(object, event);
    }

    bool m_painted = false;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const bool bare = app.arguments().value(1) == u"bare";
    EndAtFirstPaint end;
    if (bare) {
        QMainWindow window;
        window.resize(1120, 760);
        window.installEventFilter(&end);
        window.show();
        return QApplication::exec();
    }
    moravel::bench::RealPlatform platform;
    moravel::MoravelAppDelegate delegate(
        platform.lend(), std::nullopt,
        platform.shareSetup(QStringLiteral("http://127.0.0.1:9/potd")), {});
    delegate.applicationWillFinishLaunching();
    delegate.window().installEventFilter(&end);
    delegate.window().show();
    platform.loop.schedule(0, [&] { delegate.applicationDidFinishLaunching(); });
    return QApplication::exec();
}
