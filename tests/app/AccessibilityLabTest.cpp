// SPDX-License-Identifier: MIT
// The application's windows as a screen reader finds them on the bus of the assistive tools.
#include "App.h"
#include "support/ExpectWarning.h"
#include "support/Lab.h"

#include <QAction>
#include <QApplication>
#include <QDir>

namespace moravel {
namespace {

using namespace testing;

TEST(AccessibilityLab, everyControlHasNameAndRole)
{
    // The executable's own resource.
    expectWarning(QStringLiteral("Cannot open file ':/moravel/icon.svg'"));
    const TempHome home;
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options, true);
    app.run(20);
    app.delegate.cells().at(0).showThumbLarge();
    for (auto *action : app.delegate.window().findChildren<QAction *>()) {
        if (action->objectName() == QStringLiteral("picBrowser"))
            action->trigger();
    }
    app.run(20);
    const QString script = QStringLiteral(MORAVEL_SOURCE_DIR "/tests/app/accessible.py");
    const Ended ended = runProgram(
        {QStringLiteral("/usr/bin/python3"), script, QCoreApplication::applicationName()});
    EXPECT_EQ(ended.code, 0);
    EXPECT_GE(ended.output.count('\n'), 3) << ended.output.constData();
    keepShot();
}

} // namespace
} // namespace moravel
