// SPDX-License-Identifier: MIT
#include "app/CurrentPicture.h"
#include "app/Look.h"
#include "app/MoravelAppDelegate.h"
#include "app/Translations.h"
#include "app/Version.h"
#include "platform/Texts.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/FullScreenWatch.h"
#include "platform/linux/desktops/LookSettings.h"
#include "platform/linux/session/Activation.h"
#include "platform/linux/session/AutostartEntry.h"
#include "platform/linux/session/AutostartPortal.h"
#include "platform/linux/session/DBusNotifications.h"
#include "platform/linux/session/EndSignals.h"
#include "platform/linux/session/GioPrograms.h"
#include "platform/linux/session/LinuxSurroundings.h"
#include "platform/linux/session/LinuxWorkspace.h"
#include "platform/linux/session/LocalService.h"
#include "platform/linux/session/ProgramInstance.h"
#include "platform/linux/session/ProgramName.h"
#include "platform/linux/session/QtTray.h"
#include "platform/linux/session/RunningProgram.h"
#include "platform/linux/session/SessionEvents.h"
#include "platform/qt/MessageLog.h"
#include "platform/qt/QtAlerts.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDefaults.h"
#include "platform/qt/QtHttp.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtRandom.h"
#include "platform/qt/QtThumbnails.h"
#include "platform/qt/QtUrlOpener.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QSessionManager>

#include <cstdio>

namespace {

using namespace moravel;

constexpr int Refused = 1; // exit codes
constexpr int UsageError = 2;
constexpr int NotRunning = 3;

// Answers that need neither a display nor a start: returns the exit code, or nothing to go on.
std::optional<int> answeredAtOnce(const tl::expected<Options, QString> &options)
{
    if (!options) {
        std::fprintf(stderr, "moravel: %s\n%s\n", qUtf8Printable(options.error()),
                     qUtf8Printable(Texts::tr("Try 'moravel --help'.")));
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

// The same for commands, which stand before all options but this one.
bool beginsWithCommand(int argc, char **argv)
{
    int first = 1;
    while (first < argc && qstrcmp(argv[first], "--json") == 0)
        ++first;
    return first < argc && argv[first][0] != '-';
}

int exitCode(const tl::expected<void, RemoteError> &result)
{
    if (result)
        return 0;
    std::fprintf(stderr, "moravel: %s\n", qUtf8Printable(result.error().text));
    return result.error().notRunning ? NotRunning : Refused;
}

int printCurrent(bool json)
{
    const auto picture = askForCurrentPicture(QDBusConnection::sessionBus());
    if (!picture)
        return exitCode(tl::unexpected(picture.error()));
    std::fputs(json ? pictureJson(*picture).constData() : qUtf8Printable(pictureText(*picture)),
               stdout);
    return 0;
}

// A command for the running program, which needs no display of its own.
int sendCommand(const Options &options, const QVariantMap &activation)
{
    if (options.command == u"current")
        return printCurrent(options.json);
    QVariantList arguments;
    for (const QString &path :
         options.arguments) // which mean something in this process's folder only
        arguments.append(QDir::current().absoluteFilePath(path));
    return exitCode(
        askRunningProgram(QDBusConnection::sessionBus(), options.command, arguments, activation));
}

int runCommand(int argc, char **argv, const QVariantMap &activation)
{
    QCoreApplication app(argc, argv);
    installTranslations(app, QLocale().uiLanguages());
    const auto options = parseOptions(QCoreApplication::arguments().mid(1));
    const auto code = answeredAtOnce(options);
    return code ? *code : sendCommand(*options, activation);
}

// Hands over to the program that runs already; what could not be handed over says the error.
tl::expected<void, RemoteError> handOver(const Options &options, const QVariantMap &activation)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (options.hidden && !options.sources)
        return {}; // it runs, and nobody asked to see it
    if (!options.sources)
        return askRunningProgram(bus, {}, {}, activation);
    return askRunningProgram(bus, remoteaction::Sources,
                             QVariantList(options.sources->cbegin(), options.sources->cend()),
                             activation);
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

// The surroundings, with what only the window system knows.
struct LinuxSession
{
    LinuxSession()
        : surroundings(QDBusConnection::systemBus(), QDBusConnection::sessionBus())
        , fullScreen(FullScreenWatch::start())
    {
        if (!fullScreen)
            return;
        fullScreen->onChanged = [this] { surroundings.setFullScreen(fullScreen->isFullScreen()); };
        fullScreen->onChanged();
    }

    LinuxSurroundings surroundings;
    std::unique_ptr<FullScreenWatch> fullScreen;
};

std::unique_ptr<Autostart> makeAutostart(Defaults &defaults)
{
    const QStringList arguments{QStringLiteral("--hidden")};
    if (AutostartPortal::isNeeded())
        return std::make_unique<AutostartPortal>(QDBusConnection::sessionBus(), defaults,
                                                 QStringList{QStringLiteral("moravel")}
                                                     + arguments);
    return std::make_unique<AutostartEntry>(commandOfThisProgram(arguments));
}

// A session that starts its programs again must not start one that it starts at each login anyway.
void tieSession(const QApplication &app, MoravelAppDelegate &delegate, const Autostart &autostart)
{
    QObject::connect(
        &app, &QGuiApplication::commitDataRequest, &delegate,
        [&delegate] { delegate.saveOpenState(); }, Qt::DirectConnection);
    QObject::connect(
        &app, &QGuiApplication::saveStateRequest, &delegate,
        [&autostart](QSessionManager &session) {
            session.setRestartHint(autostart.isOn() ? QSessionManager::RestartNever
                                                    : QSessionManager::RestartIfRunning);
            session.setRestartCommand(commandOfThisProgram({}));
        },
        Qt::DirectConnection);
}

ShareSetup shareSetup(UrlOpener &urls, Clipboard &clipboard)
{
    return {urls,
            clipboard,
            {QStringLiteral(MORAVEL_FACEBOOK_HOST), QStringLiteral(MORAVEL_TWITTER_HOST),
             QStringLiteral(MORAVEL_SERVICE_BASE_URL)},
            QStringLiteral(MORAVEL_SUPPORT_ADDRESS),
            QStringLiteral(MORAVEL_VERSION)};
}

int runApplication(QApplication &app, const Options &options, const QVariantMap &activation)
{
    ProgramInstance instance(QDBusConnection::sessionBus());
    if (instance.claim() == ProgramInstance::Claim::Second) {
        const auto handedOver = handOver(options, activation);
        const bool isEnding = !handedOver && handedOver.error().notRunning;
        if (!isEnding || instance.claim() == ProgramInstance::Claim::Second)
            return exitCode(handedOver);
    }
    QtMainLoop loop;
    QtHttp http;
    QtDefaults defaults;
    PosixFiles files;
    QtAlerts alerts;
    QtImages images;
    QtRandom random;
    QtUrlOpener urls;
    QtClipboard clipboard;
    QtThumbnails thumbnails;
    LinuxTrash trash(loop);
    GioPrograms programs;
    LinuxDesktop desktop(loop, files, images);
    LocalService service(
        {QUrl(QStringLiteral(MORAVEL_SERVICE_BASE_URL)),
         QCoreApplication::applicationDirPath() + QStringLiteral("/moravel-service"),
         QStringLiteral(MORAVEL_SERVICE_CONFIG)},
        loop);
    LinuxSession session;
    LookSettings look(QDBusConnection::sessionBus());
    look.onChanged = [&look] { applyLook(look.look()); };
    look.onChanged();
    const std::unique_ptr<Autostart> autostart = makeAutostart(defaults);
    MoravelAppDelegate delegate({loop, http, defaults, files, alerts, images, random, &trash,
                                 &programs, &session.surroundings, autostart.get()},
                                desktop.lend(), shareSetup(urls, clipboard), options, &thumbnails);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &delegate,
                     &MoravelAppDelegate::applicationShouldTerminate);
    delegate.applicationWillFinishLaunching();
    alerts.setParentWindow(&delegate.window());
    delegate.showWindow();
    const EndSignals endSignals([] { QCoreApplication::quit(); });
    tieSession(app, delegate, *autostart);
    // The window is on screen before the disk and the service are asked.
    loop.schedule(0, [&] {
        service.ensure([&] {
            delegate.applicationDidFinishLaunching();
            delegate.attachRemoteControl(instance);
            instance.ready();
        });
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    installMessageLog();
    for (int i = 1; i < argc; ++i) {
        if (isQuestion(argv[i])) {
            QCoreApplication app(argc, argv);
            installTranslations(app, QLocale().uiLanguages());
            return *answeredAtOnce(parseOptions({QString::fromLocal8Bit(argv[i])}));
        }
    }
    const QVariantMap activation = activationFromEnvironment();
    if (beginsWithCommand(argc, argv))
        return runCommand(argc, argv, activation);
    QApplication app(argc, argv);
    installTranslations(app, QLocale().uiLanguages());
    QApplication::setApplicationName(QStringLiteral("moravel"));
    QApplication::setApplicationVersion(QStringLiteral(MORAVEL_VERSION));
    QApplication::setDesktopFileName(ProgramName);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/moravel/icon.svg")));
    QApplication::setQuitOnLastWindowClosed(false); // the main window quits, and it may be hidden
    const auto options = parseOptions(QApplication::arguments().mid(1));
    if (const auto code = answeredAtOnce(options))
        return *code;
    if (options->action == Options::Action::Command)
        return sendCommand(*options, activation);
    return runApplication(app, *options, activation);
}
