// SPDX-License-Identifier: MIT
#include "server/app/CommandLine.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace moravel::server {

TEST(CommandLine, WinsOverTheFile)
{
    const testing::TempHome home;
    const QString file = home.write(QStringLiteral("c.json"), R"({"port": 1, "bind": "::1"})");
    const auto config = readCommandLine({QStringLiteral("x"), QStringLiteral("--config"), file,
                                         QStringLiteral("--port"), QStringLiteral("0")});
    ASSERT_TRUE(config);
    EXPECT_EQ(config->port, 0);
    EXPECT_EQ(config->bind, QStringLiteral("::1"));
}

TEST(CommandLine, EndsEarlyWithTheRightStatus)
{
    const struct
    {
        QStringList arguments;
        int status;
    } cases[] = {
        {{QStringLiteral("--help")}, 0},
        {{QStringLiteral("--version")}, 0},
        {{QStringLiteral("--bogus")}, 2},
        {{QStringLiteral("extra")}, 2},
        {{QStringLiteral("--port")}, 2},
        {{QStringLiteral("--port"), QStringLiteral("65536")}, 2},
        {{QStringLiteral("--port"), QStringLiteral("x")}, 2},
        {{QStringLiteral("--bind"), QStringLiteral("localhost")}, 2},
        {{QStringLiteral("--config"), QStringLiteral("/nonexistent/c.json")}, 2},
    };

    for (const auto &[arguments, status] : cases) {
        const auto config = readCommandLine(QStringList{QStringLiteral("x")} + arguments);
        ASSERT_FALSE(config) << arguments.join(u' ').toStdString();
        EXPECT_EQ(config.error().status, status) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(config.error().text.isEmpty());
    }
}

} // namespace moravel::server
