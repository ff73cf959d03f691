// SPDX-License-Identifier: MIT
// Kills a process that stores records, at random moments, and looks at what it leaves.
#include "StoreWorld.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kills = 200;
constexpr int keys = 40;
constexpr int bystanders = 2000; ///< Records that nobody changes; they make a write take its time.

QString record(int key, int number)
{
    return u"201107%1\tSource\thttp://t/%2.jpg\thttp://p/%2.jpg\t\tstored as\t%3"_s
        .arg(key % 28 + 1, 2, 10, QChar(u'0'))
        .arg(key)
        .arg(number)
        .replace(u"Source"_s, u"Source%1"_s.arg(key));
}

/// Stores records without end and reports each number once its store has returned.
[[noreturn]] void storeForEver(const QString &home, int number, int report)
{
    Store store(home);
    while (store.records.saveStoredData(record(number % keys, number))
           && ::write(report, &number, sizeof number) > 0)
        ++number;
    ::_exit(1);
}

/// Reports are read until @p atLeast came, then the process is killed a random moment later. Returns the
/// last number that it reported.
int runAndKill(const QString &home, int number, int atLeast, std::chrono::microseconds later)
{
    int ends[2] = {};
    if (::pipe(ends) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child == 0)
        storeForEver(home, number, ends[1]);
    ::close(ends[1]);
    int last = number - 1;
    for (int i = 0; i<atLeast && ::read(ends[0], &last, sizeof last)> 0; ++i) { }
    const auto moment = std::chrono::steady_clock::now() + later;
    while (std::chrono::steady_clock::now() < moment) { }
    ::kill(child, SIGKILL);
    while (::read(ends[0], &last, sizeof last) > 0) { }
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? last : -1;
}

/// Checks that every key holds the last number reported for it, or the one that was on its way.
void expectWhole(const QStringList &lines, int last)
{
    const qsizetype stored = lines.size() - 1 - bystanders;
    ASSERT_GE(stored, std::min(last + 1, keys));
    ASSERT_LE(stored, std::min(last + 2, keys));
    ASSERT_EQ(lines.last(), QString());
    for (int i = 0; i < bystanders; ++i)
        ASSERT_EQ(lines[i], record(i, -1).replace(u"Source"_s, u"Other"_s));
    for (qsizetype i = bystanders; i + 1 < lines.size(); ++i) {
        const int key = int(i) - bystanders;
        const int number = lines[i].section(u'\t', 6).toInt();
        ASSERT_EQ(lines[i], record(key, number));
        const int reported = last - (last - key) % keys;
        ASSERT_TRUE(number == reported || number == last + 1) << number << " for " << reported;
    }
}

} // namespace

TEST(KillTest, noMomentLosesAStoredRecord)
{
    // Memory in place of a disk, where there is one: a kill is no power failure, and syncs are slow.
    const QString shm = u"/dev/shm"_s;
    const QTemporaryDir home((QFileInfo(shm).isWritable() ? shm : QDir::tempPath())
                             + u"/moravel-XXXXXX"_s);
    Store store(home.path());
    QString text;
    for (int i = 0; i < bystanders; ++i)
        text += record(i, -1).replace(u"Source"_s, u"Other"_s) + u'\n';
    ASSERT_TRUE(store.records.writeTextData(text));

    std::mt19937 random(1); // NOLINT: the same moments in every run
    int last = -1;
    for (int i = 0; i < kills; ++i) {
        SCOPED_TRACE(i);
        last = runAndKill(home.path(), last + 1, int(random() % 4),
                          std::chrono::microseconds(random() % 3000));
        ASSERT_GE(last, -1);
        const auto left = store.records.readTextData();
        ASSERT_TRUE(left);
        ASSERT_NO_FATAL_FAILURE(expectWhole(left->split(u'\n'), last));
    }
    EXPECT_GT(last, kills / 2) << "the process was given time to store";
    store.folders.removeLeftovers();
    EXPECT_EQ(QDir(store.files.folders.applicationSupport + u"/Moravel"_s)
                  .entryList(QDir::Files | QDir::Hidden),
              QStringList{u"Moravel2.txt"_s});
}
