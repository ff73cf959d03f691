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
        "computedSources": { "Moon": false }, // not "tonight"
        "networkSources": { "Wiki": true, "Apod": { "on": false, "key": "a//b" } },
        "feedSources": [ { "shortName": "Blog", "longName": "A blog", "address": "https://a.org/f",
                           "proxy": true } ],
        "store": "postgresql://a@b/c", "publicUrl": "https://a.org/potd",
        "proxySizes": { "thumb": "320x180" },
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
    ASSERT_EQ(config->networkSources.size(), 2);
    EXPECT_EQ(config->networkSources[0].key, QStringLiteral("a//b")); // In the order of names.
    EXPECT_FALSE(config->networkSources[0].isOn);
    EXPECT_TRUE(config->networkSources[1].isOn);
    EXPECT_TRUE(config->feedSources.at(0).proxy);
    EXPECT_EQ(config->store, QStringLiteral("postgresql://a@b/c"));
    EXPECT_EQ(config->proxySizes.value(QStringLiteral("thumb")), QSize(320, 180));
    EXPECT_TRUE(readConfig(home.write(QStringLiteral("c.json"), "{}")));
    EXPECT_TRUE(readConfig(QStringLiteral(MORAVEL_SERVICE_PACKAGED_CONFIG)));
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
        {R"({"networkSources": {"Wiki": 1}})", "\"networkSources\""},
        {R"({"networkSources": {"Wiki": {"adress": ""}}})", "unknown key \"adress\""},
        {R"({"feedSources": [{"shortName": "A", "longName": "A", "address": "file:///x"}]})",
         "\"address\""},
        {R"({"publicUrl": "https://a.org/"})", "\"publicUrl\""},
        {R"({"proxySizes": {"thumb": "1x1"}})", "\"thumb\""},
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
