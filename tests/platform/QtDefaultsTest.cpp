// SPDX-License-Identifier: MIT
#include "platform/qt/QtDefaults.h"

#include "support/Test.h"

#include <cmath>
#include <limits>

namespace {

struct QtDefaultsTest : ::testing::Test
{
    /// Stores by @p store, and opens a copy of the file, which nothing in this process knows yet.
    template <typename Store>
    std::unique_ptr<QtDefaults> reopened(Store store)
    {
        const QString path = home.path(u"store%1.ini"_s.arg(++m_files));
        {
            QtDefaults defaults(path);
            store(defaults);
        }
        const QString copy = path + u".copy.ini"_s;
        EXPECT_TRUE(QFile::copy(path, copy));
        return std::make_unique<QtDefaults>(copy);
    }

    TempHome home;
    const QString key = u"sources"_s;

private:
    int m_files = 0;
};

TEST_F(QtDefaultsTest, ListsComeBackAsTheyWere)
{
    const QList<QStringList> lists{
        {},
        {QString()},
        {QString(), QString()},
        {u"one"_s},
        {u"one, two"_s, u"three"_s},
        {u"@Invalid()"_s, u"@at"_s},
        {u"@ByteArray(x)"_s},
        {u"\"quoted\""_s, u"back\\slash"_s, u"semi;colon"_s},
        {u" spaces "_s, u"tab\tline\nreturn\r"_s},
        {QString::fromUtf8("Bild für den Tag"), QString::fromUtf8("日々の写真 🌄"), u"%41"_s},
        {u"nul"_s + QChar(0) + u"nul"_s, u"[General]"_s},
        {QString(100'000, u'x')},
    };
    for (const QStringList &list : lists) {
        SCOPED_TRACE(qPrintable(list.join(u'|').left(100)));
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setList(key, list); })->list(key), list);
        QtDefaults sameRun(home.path(u"same.ini"_s));
        sameRun.setList(key, list);
        EXPECT_EQ(sameRun.list(key), list);
    }
}

TEST_F(QtDefaultsTest, NumbersComeBackExactly)
{
    using Float = std::numeric_limits<float>;
    for (const float value : {0.0F, 0.1F, 0.4F, 1.0F / 3, -0.7F, 16'777'217.0F, Float::max(),
                              Float::min(), Float::denorm_min(), Float::infinity()})
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setNumber(key, value); })->number(key), value)
            << value;
    const auto nan = reopened([&](QtDefaults &d) { d.setNumber(key, Float::quiet_NaN()); });
    EXPECT_TRUE(std::isnan(nan->number(key).value_or(0)));
    using Integer = std::numeric_limits<qint64>;
    for (const qint64 value : {qint64(0), qint64(-1), Integer::min(), Integer::max()})
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setInteger(key, value); })->integer(key), value)
            << value;
    for (const bool value : {true, false})
        EXPECT_EQ(reopened([&](QtDefaults &d) { d.setBoolean(key, value); })->boolean(key), value);
}

TEST_F(QtDefaultsTest, HandEditedValues)
{
    const Table<const char *, std::optional<QStringList>, std::optional<qint64>,
                std::optional<float>, std::optional<bool>>
        cases{
            {"", {}, {}, {}, {}},
            {"sources=", {}, {}, {}, {}},
            {"sources=7", {}, 7, 7.0F, {}},
            {"sources=0.25", {}, {}, 0.25F, {}},
            {"sources=9223372036854775808", {}, {}, 9223372036854775808.0F, {}},
            {"sources=1e300", {}, {}, {}, {}},
            {"sources=True", {}, {}, {}, true},
            {"sources=one, two", {}, {}, {}, {}},
            {"sources=\"[\\\"one\\\"]\"", {{u"one"_s}}, {}, {}, {}},
            {"sources=\"[1]\"", {}, {}, {}, {}},
            {"sources=\"[\\\"one\\\"", {}, {}, {}, {}},
            {"sources=\"{}\"", {}, {}, {}, {}},
            {"sources=@Invalid()", {}, {}, {}, {}},
            {"sources=@ByteArray(7)", {}, {}, {}, {}},
            {"sources=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x7)", {}, {}, {}, {}},
            {"sources=@Variant(garbage", {}, {}, {}, {}},
        };
    int files = 0;
    for (const auto &[line, list, integer, number, boolean] : cases) {
        SCOPED_TRACE(line);
        const QtDefaults defaults(
            home.write(u"hand%1.ini"_s.arg(++files), QByteArray("[General]\n") + line + "\n"));
        EXPECT_EQ(defaults.list(key), list);
        EXPECT_EQ(defaults.integer(key), integer);
        EXPECT_EQ(defaults.number(key), number);
        EXPECT_EQ(defaults.boolean(key), boolean);
    }
}

TEST_F(QtDefaultsTest, GarbageFilesReadAsAbsentAndAreReplaced)
{
    QByteArray noise;
    for (int i = 0; i < 5000; ++i)
        noise += char(i * 131 + i / 7);
    int files = 0;
    for (const QByteArray &bytes : {noise, QByteArray(5000, '\0'), QByteArray("[[[\n===\n]]")}) {
        const QString path = home.write(u"garbage%1.ini"_s.arg(++files), bytes);
        {
            QtDefaults defaults(path);
            EXPECT_EQ(defaults.list(key), std::nullopt);
            EXPECT_EQ(defaults.number(key), std::nullopt);
            defaults.setNumber(key, 0.5F);
        }
        const QString copy = path + u".copy.ini"_s;
        ASSERT_TRUE(QFile::copy(path, copy));
        EXPECT_EQ(QtDefaults(copy).number(key), 0.5F);
    }
}

TEST_F(QtDefaultsTest, KeepsTheUsersFileInTheConfigurationFolder)
{
    {
        QtDefaults defaults;
        defaults.setBoolean(u"play"_s, true);
    }
    const QString path = qEnvironmentVariable("XDG_CONFIG_HOME") + u"/Moravel/Moravel.ini"_s;
    EXPECT_EQ(TempHome::read(path), "[General]\nplay=true\n");
}

TEST_F(QtDefaultsTest, GoesOnWithoutAWritableFile)
{
    QtDefaults defaults(home.path());
    defaults.setInteger(key, 7);
    EXPECT_EQ(defaults.integer(key), 7);
}

} // namespace
