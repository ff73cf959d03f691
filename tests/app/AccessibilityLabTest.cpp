// SPDX-License-Identifier: MIT
// The application's windows as a screen reader finds them on the bus of the assistive tools.
#include "App.h"
#include "support/Lab.h"

#include <QAction>

namespace {

TEST(AccessibilityLab, everyControlHasNameAndRole)
{
    // The executable's own resource.
    expectWarning(u"Cannot open file ':/moravel/icon.svg'"_s);
    const TempHome home;
    App app(home, allSources(), true);
    app.run(20);
    app.cell(0).showThumbLarge();
    for (auto *action : app.delegate.window().findChildren<QAction *>()) {
        if (action->objectName() == u"picBrowser"_s)
            action->trigger();
    }
    app.run(20);
    const QString script = QStringLiteral(MORAVEL_SOURCE_DIR "/tests/app/accessible.py");
    const Ended ended =
        runProgram({u"/usr/bin/python3"_s, script, QCoreApplication::applicationName()});
    EXPECT_EQ(ended.code, 0);
    EXPECT_GE(ended.output.count('\n'), 3) << ended.output.constData();
    keepShot();
}

} // namespace
