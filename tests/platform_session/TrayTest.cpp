// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "support/ExpectWarning.h"
#include "support/FakeMainLoop.h"
#include "support/Wait.h"

#include "platform/linux/session/QtTray.h"

#include <QAction>

namespace moravel {

namespace {

using namespace moravel::testing;

const QString Watcher = QStringLiteral("org.kde.StatusNotifierWatcher");

TEST(TrayLabel, showsTheTitleAsItIs)
{
    const struct
    {
        const char *title, *panel, *embedded;
    } rows[] = {
        {"Back", "Back", "Back"},
        {"a_b & c_d", "a__b && c__d", "a_b && c_d"}, // Qt makes "a__b _& c__d" of it
        {"A & B & C", "A && B & C", "A && B && C"},
        {"R&", "R&", "R&&"},
        {" two\nlines\t ", "two lines", "two lines"},
        {"\n", " ", " "},
    };

    for (const auto &row : rows) {
        SCOPED_TRACE(row.title);
        const QString title = QString::fromUtf8(row.title);
        EXPECT_EQ(trayLabel(title, TrayKind::StatusNotifier), QString::fromUtf8(row.panel));
        EXPECT_EQ(trayLabel(title, TrayKind::Embedded), QString::fromUtf8(row.embedded));
    }
    EXPECT_EQ(trayLabel(QString(100'000, u'x'), TrayKind::Embedded).size(), 100);
}

TEST(TrayHosts, prefersThePanelAndTakesWhatComes)
{
    const struct
    {
        bool embedding, watcher;
        double after; // seconds until the watcher comes
        QList<TrayKind> found;
    } rows[] = {
        {false, false, 0, {}},
        {true, false, 0, {TrayKind::Embedded}},
        {false, true, 100, {TrayKind::StatusNotifier}},
        {true, true, 1, {TrayKind::StatusNotifier}},
        {true, true, 3, {TrayKind::Embedded}},
    };

    for (const auto &row : rows) {
        SCOPED_TRACE(::testing::Message() << row.embedding << row.watcher << row.after);
        PrivateBus bus;
        FakeMainLoop loop;
        TrayHosts hosts(bus.connection(), loop);
        BusName seen(bus.connection(), Watcher);
        QDBusConnection panel = bus.connection();
        QList<TrayKind> found;
        QObject::connect(&hosts, &TrayHosts::found, [&found](TrayKind kind) { found << kind; });
        if (row.embedding)
            hosts.embeddingTrayIsThere();
        loop.advance(row.after);
        if (row.watcher) {
            panel.registerService(Watcher);
            MORAVEL_WAIT(seen.isOwned());
            MORAVEL_WAIT(!found.isEmpty());
        }
        loop.advance(10);
        EXPECT_EQ(found, row.found);
    }
}

TEST(QtTray, buildsItsMenuAtEachOpening)
{
    PrivateBus bus;
    FakeMainLoop loop;
    QtTray tray(bus.connection(), loop);
    QList<TrayMenuItem> items;
    QStringList commands;
    int asked = 0;
    tray.onMenuNeeded = [&] {
        ++asked;
        return items;
    };
    tray.onCommand = [&commands](const QString &command) { commands.append(command); };
    QImage image(160, 90, QImage::Format_RGB32);
    image.fill(Qt::blue);
    tray.setImage(image); // no tray yet
    tray.setImage({});
    EXPECT_EQ(asked, 0);
    Q_EMIT tray.menu().aboutToShow();
    EXPECT_TRUE(tray.menu().isEmpty());

    items = {{QStringLiteral("R&D"), QStringLiteral("show")},
             {},
             {QStringLiteral("In 3 minutes"), {}, false},
             {QStringLiteral("Now"), QStringLiteral("rotate")}};
    Q_EMIT tray.menu().aboutToShow();
    const QList<QAction *> actions = tray.menu().actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("R&&D"));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    for (QAction *action : actions)
        action->trigger();
    EXPECT_EQ(commands, (QStringList{QStringLiteral("show"), QStringLiteral("rotate")}));

    Q_EMIT tray.menu().aboutToShow();
    EXPECT_EQ(tray.menu().actions(), actions); // the same lines are kept
    items.removeLast();
    Q_EMIT tray.menu().aboutToShow();
    EXPECT_EQ(tray.menu().actions().size(), 3);

    items.removeLast();
    expectWarning(QStringLiteral("systemTrayWindowChanged")); // Qt's, on the offscreen platform
    QDBusConnection(bus.connection()).registerService(Watcher);
    MORAVEL_WAIT(tray.menu().actions().size() == 2);
    tray.setImage(image);
}

} // namespace

} // namespace moravel
