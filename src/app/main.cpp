// SPDX-License-Identifier: MIT
#include "app/MoravelAppDelegate.h"
#include "app/Version.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/session/DBusNotifications.h"
#include "platform/linux/session/GioPrograms.h"
#include "platform/linux/session/LinuxWorkspace.h"
#include "platform/linux/session/QtTray.h"
#include "platform/linux/session/SessionEvents.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtDefaults.h"
#include "platform/qt/QtHttp.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtRandom.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>

namespace {

using namespace moravel;

constexpr int UsageError = 2;

// Answers that need neither a display nor a start: returns the exit code, or nothing to go on.
std::optional<int> answeredAtOnce(const tl::expected<Options, QString> &options)
{
    if (!options) {
        std::fprintf(stderr, "moravel: %s\n", qUtf8Printable(options.error()));
        return UsageError;
    }
    if (options->action == Options::Action::PrintVersion)
        std::printf("moravel %s\nservice: %s\n", MORAVEL_VERSION, MORAVEL_SERVICE_BASE_URL);
    else if (options->action == Options::Action::PrintHelp)
        std::fputs(qUtf8Printable(helpText()), stdout);
    else
        return std::nullopt;
    return 0;
}

// The arguments without those that Qt takes for itself would need a display to be known, so the few
// questions that need no display are looked for first.
bool isQuestion(const char *argument)
{
    for (const char *name : {"--version", "--help", "-h"}) {
        if (qstrcmp(argument, name) == 0)
            return true;
    }
    return false;
}

// What the desktop lends the program. The session bus may be missing; then only the pictures work.
struct LinuxDesktop
{
    LinuxDesktop(MainLoop &loop, Files &files, Images &images)
        : tray(QDBusConnection::sessionBus(), loop)
        , workspace(QDBusConnection::sessionBus())
        , notifications(QDBusConnection::sessionBus(), images)
        , sessionEvents(QDBusConnection::systemBus())
        , pictures(makeDesktopPictures(
              {files, files.standardFolders().applicationSupport + QStringLiteral("/Moravel")}))
    {
        sessionEvents.onResume = [this] {
            if (pictures && pictures->onScreensChanged)
                pictures->onScreensChanged();
        };
    }

    std::optional<DesktopPlatform> lend()
    {
        if (!pictures)
            return std::nullopt;
        return DesktopPlatform{pictures.get(), tray, workspace, notifications};
    }

    QtTray tray;
    LinuxWorkspace workspace;
    DBusNotifications notifications;
    SessionEvents sessionEvents;
    std::unique_ptr<DesktopPictures> pictures;
};

int runApplication(QApplication &app, const Options &options)
{
    QtMainLoop loop;
    QtHttp http;
    QtDefaults defaults;
    PosixFiles files;
    QtAlerts alerts;
    QtImages images;
    QtRandom random;
    LinuxTrash trash(loop);
    GioPrograms programs;
    LinuxDesktop desktop(loop, files, images);
    MoravelAppDelegate delegate(
        {loop, http, defaults, files, alerts, images, random, &trash, &programs}, desktop.lend(),
        QStringLiteral(MORAVEL_SERVICE_BASE_URL), options);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &delegate,
                     &MoravelAppDelegate::applicationShouldTerminate);
    delegate.applicationWillFinishLaunching();
    alerts.setParentWindow(&delegate.window());
    delegate.window().show();
    // The window is on screen before the disk and the service are asked.
    loop.schedule(0, [&delegate] { delegate.applicationDidFinishLaunching(); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    qSetMessagePattern(QStringLiteral("%{if-category}%{category}: %{endif}%{message}"));
    for (int i = 1; i < argc; ++i) {
        if (isQuestion(argv[i]))
            return *answeredAtOnce(parseOptions({QString::fromLocal8Bit(argv[i])}));
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("moravel"));
    QApplication::setApplicationDisplayName(QStringLiteral("Moravel"));
    QApplication::setApplicationVersion(QStringLiteral(MORAVEL_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("moravel"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/moravel/icon.svg")));
    const auto options = parseOptions(QApplication::arguments().mid(1));
    if (const auto code = answeredAtOnce(options))
        return *code;
    return runApplication(app, *options);
}
