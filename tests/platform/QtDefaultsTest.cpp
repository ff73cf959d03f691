// SPDX-License-Identifier: MIT
#include "platform/qt/QtDefaults.h"

#include "support/TempHome.h"

#include <QDir>
#include <QFile>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using moravel::QtDefaults;
using moravel::testing::TempHome;

namespace {

class QtDefaultsTest : public testing::Test
{
protected:
    /// Stores by @p store, and opens a copy of the file, which nothing in this process knows yet.
    template <typename Store>
    std::unique_ptr<QtDefaults> reopened(Store store)
    {
        const QString path = home.path(QStringLiteral("store%1.ini").arg(++m_files));
        {
            QtDefaults defaults(path);
            store(defaults);
        }
        const QString copy = path + QStringLiteral(".copy.ini");
        EXPECT_TRUE(QFile::copy(path, copy));
        return std::make_unique<QtDefaults>(copy);
    }

    TempHome home;
    const QString key = QStringLiteral("sources");

private:
    int m_files = 0;
};

TEST_F(QtDefaultsTest, ListsComeBackAsTheyWere)
{
    const QList<QStringList> lists{
        {},
        {QString()},
        {QString(), QString()},
        {QStringLiteral("one")},
        {QStringLiteral("one, two"), QStringLiteral("three")},
        {QStringLiteral("@Invalid()"), QStringLiteral("@at")},
        {QStringLiteral("@ByteArray(x)")},
        {QStringLiteral("\"quoted\""), QStringLiteral("back\\slash"), QStringLiteral("semi;colon")},
        {QStringLiteral(" spaces "), QStringLiteral("tab\tline\nreturn\r")},
        {QString::fromUtf8("Bild für den Tag"), QString::fromUtf8("日々の写真 🌄"),
         QStringLiteral("%41")},
        {QStringLiteral("nul") + QChar(0) + QStringLiteral("nul"), QStringLiteral("[General]")},
        {QString(100'000, u'x')},
    };
    for (const QStringList &list : lists) {
        SCOPED_TRACE(qPrintable(list.join(u'|').left(100)));
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setList(key, list); })->list(key), list);
        QtDefaults sameRun(home.path(QStringLiteral("same.ini")));
        sameRun.setList(key, list);
        EXPECT_EQ(sameRun.list(key), list);
    }
}

TEST_F(QtDefaultsTest, NumbersComeBackExactly)
{
    using Float = std::numeric_limits<float>;
    for (const float value : {0.0F, 0.1F, 0.4F, 1.0F / 3, -0.7F, 16'777'217.0F, Float::max(),
                              Float::min(), Float::denorm_min(), Float::infinity()}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setNumber(key, value); })->number(key), value);
    }
    const auto nan = reopened([&](QtDefaults &d) { d.setNumber(key, Float::quiet_NaN()); });
    EXPECT_TRUE(std::isnan(nan->number(key).value_or(0)));
    using Integer = std::numeric_limits<qint64>;
    for (const qint64 value : {qint64(0), qint64(-1), Integer::min(), Integer::max()}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setInteger(key, value); })->integer(key), value);
    }
    for (const bool value : {true, false})
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setBoolean(key, value); })->boolean(key), value);
}

TEST_F(QtDefaultsTest, HandEditedValues)
{
    struct Case
    {
        const char *line;
        std::optional<QStringList> list;
        std::optional<qint64> integer;
        std::optional<float> number;
        std::optional<bool> boolean;
    };

    const QList<Case> cases{
        {"", {}, {}, {}, {}},
        {"sources=", {}, {}, {}, {}},
        {"sources=7", {}, 7, 7.0F, {}},
        {"sources=0.25", {}, {}, 0.25F, {}},
        {"sources=9223372036854775808", {}, {}, 9223372036854775808.0F, {}},
        {"sources=1e300", {}, {}, {}, {}},
        {"sources=True", {}, {}, {}, true},
        {"sources=one, two", {}, {}, {}, {}},
        {"sources=\"[\\\"one\\\"]\"", {{QStringLiteral("one")}}, {}, {}, {}},
        {"sources=\"[1]\"", {}, {}, {}, {}},
        {"sources=\"[\\\"one\\\"", {}, {}, {}, {}},
        {"sources=\"{}\"", {}, {}, {}, {}},
        {"sources=@Invalid()", {}, {}, {}, {}},
        {"sources=@ByteArray(7)", {}, {}, {}, {}},
        {"sources=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x7)", {}, {}, {}, {}},
        {"sources=@Variant(garbage", {}, {}, {}, {}},
    };
    int files = 0;
    for (const Case &edited : cases) {
        SCOPED_TRACE(edited.line);
        const QtDefaults defaults(home.write(QStringLiteral("hand%1.ini").arg(++files),
                                             QByteArray("[General]\n") + edited.line + "\n"));
        EXPECT_EQ(defaults.list(key), edited.list);
        EXPECT_EQ(defaults.integer(key), edited.integer);
        EXPECT_EQ(defaults.number(key), edited.number);
        EXPECT_EQ(defaults.boolean(key), edited.boolean);
    }
}

TEST_F(QtDefaultsTest, GarbageFilesReadAsAbsentAndAreReplaced)
{
    QByteArray noise;
    for (int i = 0; i < 5000; ++i)
        noise += char(i * 131 + i / 7);
    int files = 0;
    for (const QByteArray &bytes : {noise, QByteArray(5000, '\0'), QByteArray("[[[\n===\n]]")}) {
        const QString path = home.write(QStringLiteral("garbage%1.ini").arg(++files), bytes);
        {
            QtDefaults defaults(path);
            EXPECT_EQ(defaults.list(key), std::nullopt);
            EXPECT_EQ(defaults.number(key), std::nullopt);
            defaults.setNumber(key, 0.5F);
        }
        const QString copy = path + QStringLiteral(".copy.ini");
        ASSERT_TRUE(QFile::copy(path, copy));
        EXPECT_EQ(QtDefaults(copy).number(key), 0.5F);
    }
}

TEST_F(QtDefaultsTest, KeepsTheUsersFileInTheConfigurationFolder)
{
    {
        QtDefaults defaults;
        defaults.setBoolean(QStringLiteral("play"), true);
    }
    const QString path =
        qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/Moravel/Moravel.ini");
    EXPECT_EQ(TempHome::read(path), "[General]\nplay=true\n");
}

TEST_F(QtDefaultsTest, GoesOnWithoutAWritableFile)
{
    QtDefaults defaults(home.path());
    defaults.setInteger(key, 7);
    EXPECT_EQ(defaults.integer(key), 7);
}

} // namespace
