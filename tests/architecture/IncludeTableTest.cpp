// SPDX-License-Identifier: MIT
// The floor plan: which folder may include which. A row that is missing here is a wall.
#include "support/Test.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace {

using Names = QSet<QString>;

Names set(const char *names)
{
    const QStringList list = QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts);
    return {list.begin(), list.end()};
}

const QMap<QString, Names> Allowed{
    {u"platform"_s, set("")},
    {u"platform/qt"_s, set("platform")},
    {u"platform/linux"_s, set("platform")},
    {u"text"_s, set("")},
    {u"base"_s, set("platform")},
    {u"store"_s, set("platform base text")},
    {u"thumb"_s, set("text")},
    {u"notify"_s, set("platform thumb")},
    {u"service"_s, set("platform base text store thumb")},
    {u"desktop"_s, set("platform base text store thumb")},
    {u"share"_s, set("platform base text store thumb")},
    {u"mainwindow"_s, set("platform base text store thumb")},
    {u"browser"_s, set("platform base text store thumb")},
    {u"app"_s,
     set("platform platform/qt platform/linux base text store thumb notify service desktop share "
         "mainwindow browser")},
    {u"server"_s, set("text server")},
};

/// The floor of a path below src, or of one that begins with "server/".
QString folderOf(const QString &path)
{
    const QString folder = path.section(u'/', 0, 0);
    return folder == u"platform" && path.count(u'/') > 1 ? path.section(u'/', 0, 1) : folder;
}

/// Looks at the sources below some folders.
void forEachSource(const QStringList &folders, const QStringList &patterns,
                   const std::function<void(const QString &path, const QString &text)> &look,
                   QDirIterator::IteratorFlag flag = QDirIterator::Subdirectories)
{
    const QDir root(QStringLiteral(MORAVEL_SOURCE_DIR));
    int files = 0;
    for (const QString &folder : folders) {
        for (QDirIterator it(root.filePath(folder), patterns, QDir::Files, flag); it.hasNext();) {
            QFile file(it.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QString path = root.relativeFilePath(file.fileName());
            SCOPED_TRACE(qPrintable(path));
            look(path, QString::fromUtf8(file.readAll()));
            ++files;
        }
    }
    EXPECT_GT(files, 20);
}

const QStringList Code{u"*.h"_s, u"*.cpp"_s};

TEST(Architecture, foldersIncludeOnlyLowerFloors)
{
    static const QRegularExpression line(u"^\\s*#\\s*include\\s+\"([^\"]+/[^\"]+)\""_s,
                                         QRegularExpression::MultilineOption);
    forEachSource({u"src"_s, u"server"_s}, Code, [](QString path, const QString &text) {
        const QString folder = folderOf(path.remove(QRegularExpression(u"^src/"_s)));
        ASSERT_TRUE(Allowed.contains(folder));
        for (const auto &match : line.globalMatch(text)) {
            const QString target = folderOf(match.captured(1));
            EXPECT_TRUE(target == folder || Allowed[folder].contains(target))
                << qPrintable(match.captured(1));
        }
    });
}

TEST(Architecture, logicFoldersShowAndConnectNothing)
{
    static const QRegularExpression outside(
        u"#include <Q(Application|Widget|MessageBox|NetworkAccessManager|Timer|EventLoop)>"_s);
    const QString names = u"platform text base store thumb notify service desktop share"_s;
    forEachSource(
        names.split(u' ').replaceInStrings(QRegularExpression(u"^"_s), u"src/"_s), Code,
        [](const QString &, const QString &text) { EXPECT_FALSE(text.contains(outside)); },
        QDirIterator::NoIteratorFlags);
}

TEST(Architecture, everySourceNamesItsLicence)
{
    forEachSource(
        {u"src"_s, u"server"_s, u"tests"_s, u"bench"_s}, Code + QStringList(u"CMakeLists.txt"_s),
        [](const QString &, const QString &text) {
            EXPECT_TRUE(text.section(u'\n', 0, 0).contains(u"SPDX-License-Identifier: MIT"));
        });
}

TEST(Architecture, everyMessageHasTheCategoryOfItsFolder)
{
    static const QRegularExpression bare(u"\\bq(Debug|Info|Warning|Critical)\\("_s);
    QHash<QString, qsizetype> categories;
    forEachSource({u"src"_s}, Code, [&categories](const QString &path, const QString &text) {
        EXPECT_FALSE(text.contains(bare));
        qsizetype &count = categories[path.section(u'/', 0, -2)];
        count += text.count(u"Q_LOGGING_CATEGORY("_s);
        EXPECT_LE(count, 1);
    });
}

} // namespace
