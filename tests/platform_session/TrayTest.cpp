// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "support/FakeMainLoop.h"

#include "platform/linux/session/QtTray.h"

#include <QAction>

namespace {

const QString Watcher = u"org.kde.StatusNotifierWatcher"_s;

TEST(TrayLabel, showsTheTitleAsItIs)
{
    const Table<const char *, const char *, const char *> rows{
        {"Back", "Back", "Back"},
        {"a_b & c_d", "a__b && c__d", "a_b && c_d"}, // Qt makes "a__b _& c__d" of it
        {"A & B & C", "A && B & C", "A && B && C"},
        {"R&", "R&", "R&&"},
        {" two\nlines\t ", "two lines", "two lines"},
        {"\n", " ", " "},
    };
    for (const auto &[title, panel, embedded] : rows) {
        EXPECT_EQ(trayLabel(QLatin1String(title), TrayKind::StatusNotifier), QLatin1String(panel));
        EXPECT_EQ(trayLabel(QLatin1String(title), TrayKind::Embedded), QLatin1String(embedded));
    }
    EXPECT_EQ(trayLabel(QString(100'000, u'x'), TrayKind::Embedded).size(), 100);
}

TEST(TrayHosts, prefersThePanelAndTakesWhatComes)
{
    using enum TrayKind;
    // the last number: seconds until the watcher comes
    const Table<bool, bool, double, QList<TrayKind>> rows{
        {false, false, 0, {}},
        {true, false, 0, {Embedded}},
        {false, true, 100, {StatusNotifier}},
        {true, true, 1, {StatusNotifier}},
        {true, true, 3, {Embedded}},
    };
    for (const auto &[embedding, watcher, after, kinds] : rows) {
        SCOPED_TRACE(::testing::Message() << embedding << watcher << after);
        PrivateBus bus;
        FakeMainLoop loop;
        TrayHosts hosts(bus.connection(), loop);
        BusName seen(bus.connection(), Watcher);
        QDBusConnection panel = bus.connection();
        QList<TrayKind> found;
        QObject::connect(&hosts, &TrayHosts::found, [&found](TrayKind kind) { found << kind; });
        if (embedding)
            hosts.embeddingTrayIsThere();
        loop.advance(after);
        if (watcher) {
            panel.registerService(Watcher);
            MORAVEL_WAIT(seen.isOwned());
            MORAVEL_WAIT(!found.isEmpty());
        }
        loop.advance(10);
        EXPECT_EQ(found, kinds);
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

    items = {{u"R&D"_s, u"show"_s}, {}, {u"In 3 minutes"_s, {}, false}, {u"Now"_s, u"rotate"_s}};
    Q_EMIT tray.menu().aboutToShow();
    const QList<QAction *> actions = tray.menu().actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->text(), u"R&&D"_s);
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    for (QAction *action : actions)
        action->trigger();
    EXPECT_EQ(commands, (QStringList{u"show"_s, u"rotate"_s}));

    Q_EMIT tray.menu().aboutToShow();
    EXPECT_EQ(tray.menu().actions(), actions); // the same lines are kept
    items.removeLast();
    Q_EMIT tray.menu().aboutToShow();
    EXPECT_EQ(tray.menu().actions().size(), 3);

    items.removeLast();
    expectWarning(u"systemTrayWindowChanged"_s); // Qt's, on the offscreen platform
    QDBusConnection(bus.connection()).registerService(Watcher);
    MORAVEL_WAIT(tray.menu().actions().size() == 2);
    tray.setImage(image);
}

} // namespace
