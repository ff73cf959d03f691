// SPDX-License-Identifier: MIT
#include "server/core/Config.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace moravel::server {

TEST(Config, ReadsAllKeysAndCountsPathsFromItsFolder)
{
    const testing::TempHome home;
    const auto config = readConfig(home.write(QStringLiteral("c.json"), R"({
        "bind": "::1", "port": 0, "cacheBytes": 5000000, "newsFile": "news.txt",
        "computedSources": { "Moon": false },
        "folderSources": [ { "shortName": "Family", "longName": "Our family", "path": "pics",
                             "credit": "We", "licence": "CC0" } ] })"));
    ASSERT_TRUE(config) << config.error().toStdString();
    EXPECT_EQ(config->bind, QStringLiteral("::1"));
    EXPECT_EQ(config->port, 0);
    EXPECT_EQ(config->cacheBytes, 5'000'000);
    EXPECT_EQ(config->newsFile, home.path(QStringLiteral("news.txt")));
    EXPECT_EQ(config->computedSources.value(QStringLiteral("Moon"), true), false);
    ASSERT_EQ(config->folderSources.size(), 1);
    EXPECT_EQ(config->folderSources[0].path, home.path(QStringLiteral("pics")));
    EXPECT_TRUE(readConfig(home.write(QStringLiteral("c.json"), "{}")));
}

TEST(Config, ErrorsNameTheFileAndTheKey)
{
    const testing::TempHome home;

    const struct
    {
        const char *json;
        const char *named;
    } cases[] = {
        {"", "at byte"},
        {"[]", "JSON object"},
        {R"({"prot": 1})", "unknown key \"prot\""},
        {R"({"port": 70000})", "\"port\""},
        {R"({"port": 1.5})", "\"port\""},
        {R"({"port": "1"})", "\"port\""},
        {R"({"port": 1e300})", "\"port\""},
        {R"({"bind": "example.org"})", "\"bind\""},
        {R"({"bind": 1})", "\"bind\""},
        {R"({"cacheBytes": 0})", "\"cacheBytes\""},
        {R"({"newsFile": []})", "\"newsFile\""},
        {R"({"computedSources": []})", "\"computedSources\""},
        {R"({"computedSources": {"Moon": 1}})", "\"computedSources\""},
        {R"({"folderSources": {}})", "\"folderSources\""},
        {R"({"folderSources": [1]})", "\"folderSources\""},
        {R"({"folderSources": [{"shortName": "A", "longName": "A"}]})", "\"path\""},
        {R"({"folderSources": [{"shortName": "A b", "longName": "A", "path": "p"}]})",
         "\"shortName\""},
        {R"({"folderSources": [{"shortName": "A", "longName": "A", "path": "p", "x": 1}]})",
         "unknown key \"x\""},
    };

    for (const auto &[json, named] : cases) {
        SCOPED_TRACE(json);
        const QString path = home.write(QStringLiteral("c.json"), json);
        const auto config = readConfig(path);
        ASSERT_FALSE(config);
        EXPECT_TRUE(config.error().startsWith(path));
        EXPECT_TRUE(config.error().contains(QLatin1StringView(named)))
            << config.error().toStdString();
    }
    EXPECT_FALSE(readConfig(home.path(QStringLiteral("missing.json"))));
}

} // namespace moravel::server
