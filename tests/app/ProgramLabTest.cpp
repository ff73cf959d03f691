// SPDX-License-Identifier: MIT
// The real program on a bare X screen without a tray, driven as a user does: window manager, launcher, command
// line.
#include "support/Lab.h"
#include "support/Test.h"

#include <QSettings>

namespace {

const QList<QColor> Colours{QColor(200, 0, 0), QColor(0, 200, 0), QColor(0, 0, 200)};
const QString Moravel = QStringLiteral(MORAVEL_EXECUTABLE);

struct ProgramLab : ::testing::Test
{
    ProgramLab()
    {
        const QDir pictures(QDir::homePath() + u"/Pictures/Moravel"_s);
        QDir().mkpath(pictures.path());
        for (const QColor &colour : Colours) {
            QImage image(800, 600, QImage::Format_RGB32);
            image.fill(colour);
            EXPECT_TRUE(image.save(pictures.filePath(colour.name().mid(1) + u".png"_s)));
        }
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        // The lower right corner shows the desktop.
        program.start(Moravel, {u"-qwindowgeometry"_s, u"600x500+0+0"_s});
        EXPECT_TRUE(waitFor([this] { return windows().contains("Moravel"); }));
    }

    ~ProgramLab() override
    {
        program.kill();
        program.waitForFinished();
    }

    static int run(const QStringList &command) { return runProgram(command).code; }

    static QByteArray windows() { return runProgram({u"wmctrl"_s, u"-l"_s}).output; }

    static QColor desktop() { return screenshot().pixelColor(799, 599); }

    /// Waits until the desktop is of a colour of ours other than @p last; returns it.
    static QColor nextDesktop(const QColor &last)
    {
        EXPECT_TRUE(waitFor([&] { return Colours.contains(desktop()) && desktop() != last; }));
        return desktop();
    }

    static int command(const char *name) { return run({Moravel, QLatin1String(name)}); }

    QProcess program;
};

TEST_F(ProgramLab, takesCommandsAndEndsWithItsWindow)
{
    EXPECT_EQ(command("previous"), 1); // there is none
    EXPECT_EQ(command("next"), 0);
    const QColor first = nextDesktop({});
    for (int attempt = 0; attempt < 20 && desktop() == first; ++attempt) {
        EXPECT_EQ(command("next"), 0);
        const QDeadlineTimer soon(1'000); // chance may choose the same picture again
        waitFor([&] { return desktop() != first || soon.hasExpired(); });
    }
    const QColor second = nextDesktop(first);
    EXPECT_EQ(command("previous"), 0);
    EXPECT_EQ(nextDesktop(second), first);

    QSettings file(QStringLiteral(MORAVEL_DESKTOP_FILE), QSettings::IniFormat);
    QStringList actions;
    for (const QString &group : file.childGroups()) {
        if (!group.startsWith("Desktop Action"_L1))
            continue;
        QStringList words = QProcess::splitCommand(file.value(group + u"/Exec"_s).toString());
        ASSERT_EQ(words.takeFirst(), u"moravel"_s);
        EXPECT_EQ(run(QStringList{Moravel} + words), 0) << qPrintable(group);
        actions.append(words.last());
    }
    EXPECT_EQ(actions.size(), 3);

    const QString window = QString::fromLatin1(windows().left(10));
    EXPECT_EQ(run({u"xdotool"_s, u"windowminimize"_s, window}), 0);
    EXPECT_EQ(run({Moravel}), 0); // a second start
    EXPECT_EQ(run({u"xdotool"_s, u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s,
                   u"Moravel"_s}),
              0);
    EXPECT_EQ(windows().count('\n'), 1);
    EXPECT_EQ(program.state(), QProcess::Running);

    EXPECT_EQ(run({u"wmctrl"_s, u"-i"_s, u"-c"_s, window}), 0);
    EXPECT_TRUE(waitFor([this] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(command("next"), 3);
}

} // namespace
