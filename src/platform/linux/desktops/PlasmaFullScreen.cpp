// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PlasmaFullScreen.h"

#include "platform/linux/desktops/DesktopLog.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace moravel {

namespace {

const QString Compositor = QStringLiteral("org.kde.KWin");

// The names of the functions differ between versions 5 and 6.
const char Script[] = R"(
function tell() {
    var active = workspace.activeWindow || workspace.activeClient;
    callDBus("%1", "%2", "org.moravel.FullScreen1", "tell",
             !!active && active.fullScreen === true && active.pid !== %3);
}
function follow(window) {
    window.fullScreenChanged.connect(tell);
}
(workspace.windowList ? workspace.windowList() : workspace.clientList()).forEach(follow);
(workspace.windowAdded || workspace.clientAdded).connect(follow);
(workspace.windowActivated || workspace.clientActivated).connect(tell);
tell();
)";

QDBusMessage scripting(const QString &method)
{
    auto call = QDBusMessage::createMethodCall(Compositor, QStringLiteral("/Scripting"),
                                               QStringLiteral("org.kde.kwin.Scripting"), method);
    call.setAutoStartService(false);
    return call;
}

} // namespace

PlasmaFullScreen::PlasmaFullScreen(qint64 self, const QDBusConnection &bus)
    : m_bus(bus)
    , m_name(QStringLiteral("moravel-%1").arg(self))
    , m_path(QStringLiteral("/org/moravel/FullScreen%1").arg(self))
    , m_compositor(Compositor, bus, QDBusServiceWatcher::WatchForRegistration)
{
    m_bus.registerObject(m_path, this, QDBusConnection::ExportScriptableSlots);
    const QString script =
        QString::fromLatin1(Script).arg(m_bus.baseService(), m_path, QString::number(self));
    if (!m_script.open() || m_script.write(script.toLatin1()) < 0 || !m_script.flush()) {
        qCWarning(desktopsLog).noquote()
            << "cannot write" << m_script.fileName() << m_script.errorString();
        return;
    }
    connect(&m_compositor, &QDBusServiceWatcher::serviceRegistered, this, [this] { load(); });
    load();
}

PlasmaFullScreen::~PlasmaFullScreen()
{
    m_bus.send(scripting(QStringLiteral("unloadScript")) << m_name);
    m_bus.unregisterObject(m_path);
}

// The calls are answered in order.
void PlasmaFullScreen::load()
{
    setFullScreen(false);
    auto *call = new QDBusPendingCallWatcher(
        m_bus.asyncCall(scripting(QStringLiteral("loadScript")) << m_script.fileName() << m_name),
        this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [call] {
        call->deleteLater();
        if (call->isError())
            qCInfo(desktopsLog).noquote()
                << "the compositor tells nothing of full screens:" << call->error().message();
    });
    m_bus.send(scripting(QStringLiteral("start")));
}

void PlasmaFullScreen::tell(bool fullScreen)
{
    if (calledFromDBus() && m_bus.interface()->serviceOwner(Compositor) == message().service())
        setFullScreen(fullScreen);
}

} // namespace moravel
