// SPDX-License-Identifier: MIT
// The floor plan: which folder may include which. A row that is missing here is a wall.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

using Table = QMap<QString, QSet<QString>>;

QSet<QString> set(const char *names)
{
    const QStringList list = QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts);
    return {list.begin(), list.end()};
}

Table allowed()
{
    return {
        {QStringLiteral("platform"), set("")},
        {QStringLiteral("platform/qt"), set("platform")},
        {QStringLiteral("platform/linux"), set("platform")},
        {QStringLiteral("text"), set("")},
        {QStringLiteral("base"), set("platform")},
        {QStringLiteral("store"), set("platform base text")},
        {QStringLiteral("thumb"), set("text")},
        {QStringLiteral("notify"), set("platform thumb")},
        {QStringLiteral("service"), set("platform base text store thumb")},
        {QStringLiteral("desktop"), set("platform base text store thumb")},
        {QStringLiteral("share"), set("platform base text store thumb")},
        {QStringLiteral("mainwindow"), set("platform base text store thumb")},
        {QStringLiteral("browser"), set("platform base text store thumb")},
        {QStringLiteral("app"),
         set("platform platform/qt platform/linux base text store thumb notify service desktop "
             "share mainwindow browser")},
        {QStringLiteral("server"), set("text server")},
    };
}

QString folderOf(const QString &path)
{
    if (path.startsWith(QLatin1String("server/")))
        return QStringLiteral("server");
    const QString folder = path.section(u'/', 0, 0);
    const QString sub = path.section(u'/', 0, 1);
    return folder == u"platform" && path.count(u'/') > 1 ? sub : folder;
}

struct Include
{
    QString file;
    QString folder;
    QString target;
};

QList<Include> includesBelow(const QString &root, const QString &prefix)
{
    static const QRegularExpression line(QStringLiteral("^\\s*#\\s*include\\s+\"([^\"]+)\""),
                                         QRegularExpression::MultilineOption);
    QList<Include> list;
    QDirIterator it(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            ADD_FAILURE() << "cannot read " << qPrintable(path);
        const QString relative = prefix + QDir(root).relativeFilePath(path);
        auto matches = line.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            list.append({relative, folderOf(relative), matches.next().captured(1)});
    }
    return list;
}

TEST(Architecture, foldersIncludeOnlyLowerFloors)
{
    const QString root = QStringLiteral(MORAVEL_SOURCE_DIR);
    const QList<Include> includes = includesBelow(root + QStringLiteral("/src"), {})
        + includesBelow(root + QStringLiteral("/server"), QStringLiteral("server/"));
    const Table table = allowed();
    EXPECT_GT(includes.size(), 100);
    for (const Include &include : includes) {
        SCOPED_TRACE(qPrintable(include.file + QStringLiteral(" includes ") + include.target));
        ASSERT_TRUE(table.contains(include.folder));
        if (!include.target.contains(u'/'))
            continue; // generated, or beside the file
        const QString target = folderOf(include.target);
        EXPECT_TRUE(target == include.folder || table[include.folder].contains(target));
    }
}

TEST(Architecture, logicFoldersShowAndConnectNothing)
{
    static const QRegularExpression outside(
        QStringLiteral("#include "
                       "<Q(Application|Widget|MessageBox|NetworkAccessManager|Timer|EventLoop)>"));
    const QString root = QStringLiteral(MORAVEL_SOURCE_DIR "/src/");
    for (const char *folder :
         {"platform", "text", "base", "store", "thumb", "notify", "service", "desktop", "share"}) {
        QDirIterator it(root + QLatin1String(folder),
                        {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files);
        while (it.hasNext()) {
            QFile file(it.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_FALSE(outside.match(QString::fromUtf8(file.readAll())).hasMatch())
                << qPrintable(file.fileName());
        }
    }
}

TEST(Architecture, everySourceNamesItsLicence)
{
    for (const char *folder : {"src", "server", "tests", "bench"}) {
        QDirIterator it(
            QStringLiteral(MORAVEL_SOURCE_DIR "/") + QLatin1String(folder),
            {QStringLiteral("*.h"), QStringLiteral("*.cpp"), QStringLiteral("CMakeLists.txt")},
            QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_TRUE(file.readLine().contains("SPDX-License-Identifier: MIT"))
                << qPrintable(file.fileName());
        }
    }
}

TEST(Architecture, everyMessageHasTheCategoryOfItsFolder)
{
    static const QRegularExpression bare(QStringLiteral("\\bq(Debug|Info|Warning|Critical)\\("));
    static const QRegularExpression category(QStringLiteral("\\bQ_LOGGING_CATEGORY\\("));
    QMap<QString, int> categories;
    QDirIterator it(QStringLiteral(MORAVEL_SOURCE_DIR "/src"), {QStringLiteral("*.cpp")},
                    QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        EXPECT_FALSE(bare.match(text).hasMatch()) << qPrintable(file.fileName());
        categories[it.fileInfo().path()] += static_cast<int>(text.count(category));
    }
    for (auto folder = categories.cbegin(); folder != categories.cend(); ++folder)
        EXPECT_LE(*folder, 1) << qPrintable(folder.key());
}

} // namespace
