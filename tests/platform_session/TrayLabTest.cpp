// SPDX-License-Identifier: MIT
// The tray icon in a real panel: seen on the screen, its menu read and used over the bus as panels do.
#include "support/FakeMainLoop.h"
#include "support/Lab.h"
#include "support/Test.h"

#include "desktop/DockMenu.h"
#include "platform/linux/session/QtTray.h"

#include <QRegularExpression>

namespace {

struct TrayLab : ::testing::Test
{
    TrayLab()
    {
        tray.onMenuNeeded = [this] {
            QList<TrayMenuItem> items;
            for (const DockMenuItem &item : dockMenuItems(state))
                items.append({item.title, QString::number(static_cast<int>(item.command)),
                              item.isEnabled()});
            return items;
        };
        tray.onCommand = [this](const QString &command) {
            commands.append(static_cast<DockCommand>(command.toInt()));
        };
        tray.onActivated = [this] { ++activated; };
    }

    /// The connection behind the one item that the panel has.
    static QString itemOwner()
    {
        const Ended ended =
            runProgram(u"gdbus call --session -d org.kde.StatusNotifierWatcher "
                       "-o /StatusNotifierWatcher -m org.freedesktop.DBus.Properties.Get "
                       "org.kde.StatusNotifierWatcher RegisteredStatusNotifierItems"_s.split(u' '));
        return QString::fromUtf8(ended.output).section(u'\'', 1, 1).section(u'/', 0, 0);
    }

    /// Calls our menu as the panel would.
    static QString menu(const char *method, const QStringList &arguments)
    {
        const QString call =
            u"gdbus call --session -d %1 -o /MenuBar -m com.canonical.dbusmenu.%2 --"_s.arg(
                itemOwner(), QLatin1String(method));
        const Ended ended = runProgram(call.split(u' ') + arguments);
        EXPECT_EQ(ended.code, 0);
        return QString::fromUtf8(ended.output);
    }

    struct Line
    {
        QString id, properties;

        QString label() const
        {
            static const QRegularExpression text(
                u"'label': <(?:'((?:[^'\\\\]|\\\\.)*)'|\"([^\"]*)\")>"_s);
            const auto match = text.match(properties);
            return match.captured(1) + match.captured(2);
        }
    };

    static QList<Line> lines()
    {
        const QString layout = menu("GetLayout", {u"0"_s, u"-1"_s, u"[]"_s});
        static const QRegularExpression line(u"<\\((\\d+), \\{(.*?)\\}, @av \\[\\]\\)>"_s);
        QList<Line> list;
        for (auto match = line.globalMatch(layout); match.hasNext();) {
            const auto one = match.next();
            list.append({one.captured(1), one.captured(2)});
        }
        return list;
    }

    static std::string labels()
    {
        QStringList list;
        for (const Line &line : lines())
            list.append(line.label());
        return list.join(u'|').toStdString();
    }

    void show(const QColor &colour)
    {
        QImage image(160, 90, QImage::Format_RGB32);
        image.fill(colour);
        tray.setImage(image);
    }

    DockMenuState state{.longSourceName = u"Sky & Stars_1"_s,
                        .dateString = u"July 4, 2011"_s,
                        .captionString = u"Moon"_s,
                        .rotateInfoText = u"Next change in 5 minutes"_s,
                        .rotateFrequency = 30,
                        .hasPrevious = true};
    QList<DockCommand> commands;
    int activated = 0;
    FakeMainLoop loop;
    QtTray tray{QDBusConnection::sessionBus(), loop};
};

TEST_F(TrayLab, showsTheIconAndTheMenuAndTakesCommands)
{
    const QColor magenta(250, 0, 250);
    show(magenta);
    MORAVEL_WAIT(findColour(magenta).has_value());
    const std::string head = "Sky _& Stars__1 - July 4, 2011|Moon||Next change in 5 minutes|";
    EXPECT_EQ(labels(),
              head + "Keep this desktop for 1 hour|Change desktop now|Back to previous desktop");
    const QList<Line> shown = lines();
    ASSERT_EQ(shown.size(), 7);
    EXPECT_TRUE(shown[3].properties.contains("'enabled': <false>"_L1));
    for (const Line &line : shown)
        menu("Event", {line.id, u"clicked"_s, u"<\"\">"_s, u"0"_s});
    using enum DockCommand;
    const QList<DockCommand> expected{ShowDesktopInfo, ShowDesktopInfo, HoldForOneHour,
                                      RotateDesktop, PreviousDesktop};
    MORAVEL_WAIT(commands.size() >= expected.size());
    EXPECT_EQ(commands, expected);

    // Made anew when it opens, and with another picture.
    state.hasPrevious = false;
    state.rotateFrequency = 60;
    menu("AboutToShow", {u"0"_s});
    EXPECT_EQ(labels(), head + "Change desktop now");
    const QColor green(0, 250, 100);
    show(green);
    MORAVEL_WAIT(findColour(green) && !findColour(magenta));

    const QPoint icon = *findColour(green);
    clickAt(icon);
    MORAVEL_WAIT(activated == 1);
    clickAt(icon, 3);
    MORAVEL_WAIT(screenshot().pixelColor(icon + QPoint(0, 60)) != Qt::black); // the panel's menu
    keepShot();
}

} // namespace
