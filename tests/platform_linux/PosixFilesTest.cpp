// SPDX-License-Identifier: MIT
#include "platform/linux/PosixFiles.h"

#include "support/Test.h"
#include "support/Volume.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct PosixFilesTest : ::testing::Test
{
    QStringList names(const QString &folder = {}) const
    {
        return QDir(m_home.path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    mode_t mode(const QString &name) const
    {
        struct stat info = {};
        return ::stat(qPrintable(m_home.path(name)), &info) == 0 ? info.st_mode & 07777 : 0;
    }

    TempHome m_home;
    PosixFiles m_files;
};

/// Lets files grow to a few bytes only: the way to a failing write that needs no privilege.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_old); }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_old = {};
};

} // namespace

TEST_F(PosixFilesTest, replacesAFileInOneStep)
{
    const QString path = m_home.path(u"data.txt"_s);
    const mode_t mask = ::umask(027);
    ASSERT_TRUE(m_files.writeAtomically(path, {"one", "", "\ntwo"}));
    EXPECT_EQ(mode(u"data.txt"_s), mode_t(0640));
    EXPECT_EQ(TempHome::read(path), "one\ntwo");

    const auto old = m_files.open(path);
    ASSERT_TRUE(old);
    ::chmod(qPrintable(path), 0602);
    ASSERT_TRUE(m_files.writeAtomically(path, {}));
    EXPECT_EQ(mode(u"data.txt"_s), mode_t(0602))
        << "the mode of the old file stays, whatever the mask";
    ::umask(mask);
    EXPECT_EQ(m_files.size(path), 0);
    EXPECT_EQ((*old)->bytes(), "one\ntwo") << "bytes stay valid while the file is replaced";
    EXPECT_EQ(names(), QStringList{u"data.txt"_s}) << "no temporary file is left";

    const QString longName = m_home.path(QString(127, QChar(u'é')));
    EXPECT_TRUE(m_files.writeAtomically(longName, {"x"}))
        << "a name of 254 bytes has room for a part";
}

TEST_F(PosixFilesTest, replacesWhatALinkLeadsTo)
{
    m_home.write(u"real/data.txt"_s, "old");
    ASSERT_TRUE(QFile::link(u"real/data.txt"_s, m_home.path(u"near"_s)));
    ASSERT_TRUE(QFile::link(m_home.path(u"near"_s), m_home.path(u"far"_s)));
    ASSERT_TRUE(QFile::link(u"real/new.txt"_s, m_home.path(u"dangling"_s)));
    ASSERT_TRUE(QFile::link(u"loop"_s, m_home.path(u"loop"_s)));

    EXPECT_TRUE(m_files.writeAtomically(m_home.path(u"far"_s), {"new"}));
    EXPECT_TRUE(m_files.writeAtomically(m_home.path(u"dangling"_s), {"born"}));
    EXPECT_FALSE(m_files.writeAtomically(m_home.path(u"loop"_s), {"x"}));
    EXPECT_EQ(TempHome::read(m_home.path(u"real/data.txt"_s)), "new");
    EXPECT_EQ(TempHome::read(m_home.path(u"real/new.txt"_s)), "born");
    EXPECT_TRUE(QFileInfo(m_home.path(u"far"_s)).isSymLink());
    EXPECT_EQ(names(u"real"_s), (QStringList{u"data.txt"_s, u"new.txt"_s}));
}

TEST_F(PosixFilesTest, readsSmallAndLargeFiles)
{
    for (const qsizetype size : {0, 1, 16 << 20, (16 << 20) + 1}) {
        QByteArray bytes(size, 'x');
        if (size > 0)
            bytes.back() = 'y';
        const auto read = m_files.open(m_home.write(u"f"_s, bytes));
        ASSERT_TRUE(read) << size;
        EXPECT_TRUE((*read)->bytes() == std::string_view(bytes)) << size;
    }
}

TEST_F(PosixFilesTest, saysWhatFailedAndWhere)
{
    m_home.write(u"plain"_s, "kept");
    ASSERT_EQ(::mkfifo(qPrintable(m_home.path(u"fifo"_s)), 0600), 0);
    const QString nothing = u"No such file or directory"_s;
    const QString invalid = u"Invalid argument"_s;

    const Table<QString, QString, QString, QString> cases{
        {QString(), nothing, nothing, nothing},
        {u"relative"_s, invalid, invalid, invalid},
        {m_home.path(u"a"_s) + QChar(u'\0') + u"b"_s, invalid, invalid, invalid},
        {m_home.path(u"none/x"_s), nothing, nothing, QString()},
        {m_home.path(u"plain/x"_s), u"Not a directory"_s, u"Not a directory"_s,
         u"Not a directory"_s},
        {m_home.path(u"plain"_s), QString(), QString(), u"File exists"_s},
        {m_home.path(u"fifo"_s), invalid, invalid, u"File exists"_s},
        {m_home.path() + u"/"_s, u"Is a directory"_s, u"Is a directory"_s, QString()},
        {m_home.path(QString(300, u'n')), u"File name too long"_s, u"File name too long"_s,
         u"File name too long"_s},
    };

    const auto expect = [](const auto &result, const QString &path, const QString &text) {
        EXPECT_EQ(result ? QString() : result.error().description, text);
        EXPECT_TRUE(result || path.startsWith(result.error().path));
    };
    for (const auto &[path, open, write, makeFolder] : cases) {
        SCOPED_TRACE(qPrintable(path));
        expect(m_files.open(path), path, open);
        expect(m_files.writeAtomically(path, {"kept"}), path, write);
        EXPECT_EQ(bool(m_files.startPart(path)), write.isEmpty());
        expect(m_files.makeFolder(path), path, makeFolder);
    }
    EXPECT_FALSE(m_files.exists(QString()));
    EXPECT_FALSE(m_files.isFolder(u"."_s));
    EXPECT_EQ(m_files.size(m_home.path(u"fifo"_s)), -1);
    EXPECT_EQ(TempHome::read(m_home.path(u"plain"_s)), "kept");
    EXPECT_EQ(names(), (QStringList{u"none"_s, u"plain"_s}));
    EXPECT_TRUE(m_files.isFolder(m_home.path(u"none/x"_s)));
}

TEST_F(PosixFilesTest, aFullDiskLeavesTheOldFile)
{
    const Volume disk(m_home.path(u"disk"_s));
    const QString path = m_home.write(u"disk/data.txt"_s, "old");
    const std::string much(1 << 20, 'x');
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(m_files.writeAtomically(path, {much}).error().description, u"File too large"_s);
    }
    if (disk.isMounted()) {
        EXPECT_EQ(m_files.writeAtomically(path, {"new", much}).error().description,
                  u"No space left on device"_s);
    }
    {
        const auto part = m_files.startPart(path);
        const FileSizeLimit limit(2);
        ASSERT_TRUE(part);
        EXPECT_FALSE((*part)->append(QByteArray("new")));
        EXPECT_FALSE((*part)->append(QByteArray("x"))) << "nothing succeeds after a failure";
        EXPECT_FALSE((*part)->commit());
    }
    EXPECT_EQ(TempHome::read(path), "old");
    EXPECT_EQ(names(u"disk"_s), QStringList{u"data.txt"_s});
}

TEST_F(PosixFilesTest, partsTakeTheTargetsNameWhenComplete)
{
    const QString target = m_home.path(u"p.jpg"_s);
    {
        const auto part = m_files.startPart(target);
        ASSERT_TRUE(part);
        ASSERT_TRUE((*part)->append(QByteArray("half")));
        EXPECT_FALSE(m_files.exists(target));
        EXPECT_TRUE(m_files.list(m_home.path())->isEmpty()) << "parts are hidden";
    }
    EXPECT_TRUE(names().isEmpty()) << "a part that was given up is gone";

    const auto part = m_files.startPart(target);
    ASSERT_TRUE((*part)->append(QByteArray("whole")));
    ASSERT_TRUE((*part)->close());
    EXPECT_EQ(TempHome::read((*part)->partPath()), "whole");
    EXPECT_FALSE((*part)->append(QByteArray("x")));

    const auto again = m_files.startPart(target);
    ASSERT_TRUE((*again)->append(QByteArray("whole")));
    ASSERT_TRUE((*again)->close());
    ASSERT_TRUE((*again)->commit());
    EXPECT_FALSE((*again)->commit());
    EXPECT_EQ(TempHome::read(target), "whole");
}

TEST_F(PosixFilesTest, removesOnlyItsOwnLeftovers)
{
    for (const char *name :
         {".p.jpg.abcdef.part", ".p.abcde.part", ".part", "p.abcdef.part", ".p.abcdeF.part"})
        m_home.write(QString::fromLatin1(name), "x");
    ASSERT_TRUE(QFile::link(u"p.abcdef.part"_s, m_home.path(u".link.abcdef.part"_s)));
    QDir(m_home.path()).mkdir(u".dir.abcdef.part"_s);
    const QStringList before = names();
    m_files.removeParts(m_home.path());
    QStringList gone = before;
    for (const QString &name : names())
        gone.removeAll(name);
    EXPECT_EQ(gone, QStringList{u".p.jpg.abcdef.part"_s});
    expectWarning(u"No such file"_s);
    m_files.removeParts(m_home.path(u"none"_s));
}

TEST_F(PosixFilesTest, movesWithoutOverwriting)
{
    const Volume disk(m_home.path(u"disk"_s)); // another file system, where mounting is allowed
    for (const QString &to : {u"to"_s, u"disk/to"_s}) {
        const QString target = m_home.path(to);
        const QString from = m_home.write(u"from"_s, "moved");
        ASSERT_TRUE(m_files.move(from, target)) << qPrintable(to);
        EXPECT_FALSE(m_files.exists(from));
        m_home.write(u"from"_s, "other");
        EXPECT_EQ(m_files.move(from, target).error().description, u"File exists"_s);
        EXPECT_EQ(TempHome::read(target), "moved");
        EXPECT_EQ(TempHome::read(from), "other");
    }
    EXPECT_FALSE(m_files.move(m_home.path(u"none"_s), m_home.path(u"x"_s)));
    EXPECT_FALSE(m_files.move(QString(), m_home.path(u"x"_s)));
    EXPECT_EQ(names(u"disk"_s), QStringList{u"to"_s});
    EXPECT_FALSE(m_files.remove(m_home.path(u"disk"_s)));
    EXPECT_TRUE(m_files.remove(m_home.path(u"to"_s)));
}

TEST_F(PosixFilesTest, listsPlainFilesInNameOrder)
{
    for (const char *name : {"b.jpg", "a.jpg", "B.jpg", ".hidden", "folder/in", "\xC3\xA9.jpg"})
        m_home.write(QString::fromUtf8(name), "x");
    ASSERT_TRUE(QFile::link(u"a.jpg"_s, m_home.path(u"link.jpg"_s)));
    ASSERT_TRUE(QFile::link(u"folder"_s, m_home.path(u"linked folder"_s)));
    const QByteArray odd = QFile::encodeName(m_home.path()) + "/\xFF.jpg"; // no UTF-8
    std::fclose(std::fopen(odd.constData(), "w"));
    EXPECT_EQ(m_files.list(m_home.path()).value(),
              (QStringList{u"B.jpg"_s, u"a.jpg"_s, u"b.jpg"_s, u"link.jpg"_s, u"é.jpg"_s}));
    EXPECT_FALSE(m_files.list(QString()));
    std::remove(odd.constData()); // QTemporaryDir cannot
}
