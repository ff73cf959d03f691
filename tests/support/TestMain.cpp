// SPDX-License-Identifier: MIT
// Runs the tests of one folder in a private home, at a fixed place and time zone; a warning that a test
// did not expect fails it (expectWarning() of ExpectWarning.h tells which are wanted).
#include "support/ExpectWarning.h"

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdlib>
#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

QList<QString> &expectedWarnings()
{
    static QList<QString> list;
    return list;
}

void onMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", context.category ? context.category : "",
                 qUtf8Printable(text));
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    if (type == QtFatalMsg)
        std::abort();
    // The offscreen platform says so of smallest sizes, and of windows to be raised.
    if (text.contains(QLatin1String("This plugin does not support")))
        return;
    for (const QString &wanted : expectedWarnings()) {
        if (text.contains(wanted))
            return;
    }
    ADD_FAILURE() << "unexpected warning: " << qPrintable(text);
}

class ForgetWarnings : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo &) override { expectedWarnings().clear(); }
};

} // namespace

void moravel::testing::expectWarning(const QString &part)
{
    expectedWarnings().append(part);
}

int main(int argc, char **argv)
{
    QTemporaryDir home;
    // A lab has a private home of its own, which its desktop shares with the test.
    if (!qEnvironmentVariableIsSet("LAB")) {
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qputenv(name, home.path().toUtf8());
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Berlin");
    tzset();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    qInstallMessageHandler(onMessage);
    testing::UnitTest::GetInstance()->listeners().Append(new ForgetWarnings);
    return RUN_ALL_TESTS();
}
