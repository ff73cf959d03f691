// SPDX-License-Identifier: MIT
// The record file at 100,000 records, against the least that the system can do with the same bytes.
// Goals: a look-up takes at most twice a bare memmem over the mapped file (for a file that no record
// mentions: two of them), a store at most twice a bare write, fsync and rename.
#include "base/Dates.h"
#include "platform/Alerts.h"
#include "platform/linux/PosixFiles.h"
#include "store/Folders.h"
#include "store/RecordFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int records = 100000;
constexpr int sources = 40;

enum Script { English, Mixed };

class BenchFiles : public moravel::PosixFiles
{
public:
    moravel::StandardFolders standardFolders() const override
    {
        return {m_home.filePath(u"Pictures"_s), m_home.filePath(u"share"_s)};
    }

private:
    QTemporaryDir m_home;
};

class NoAlerts : public moravel::Alerts
{
public:
    void alert(const QString &title, const QString &text) override
    {
        std::fprintf(stderr, "%s %s\n", qPrintable(title), qPrintable(text));
        std::abort();
    }
};

/// About 250 bytes a record; in the mixed script every text is Japanese or German.
QString record(int i, Script script)
{
    const QString caption =
        script == English ? u"A caption of the usual length"_s : u"夜空に輝く天の川と流れ星"_s;
    const QString info = script == English
        ? u"A text that says what can be seen in the picture and goes on for a line or so"_s
        : u"Ein Text über die Bäume, die man auf dem Bild sieht, und über schöne Städte"_s;
    const QDate day = QDate(2004, 1, 1).addDays(i / sources);
    return u"%1\tsource%2\thttp://pictures.example/thumbs/small%3.jpg\thttp://pictures.example/"
           u"large/large%3.jpg"
           "\thttp://pictures.example/page/%3\t%4\t%5\n"_s.arg(day.toString(u"yyyyMMdd"_s))
               .arg(i % sources)
               .arg(i)
               .arg(caption, info);
}

struct Bench
{
    explicit Bench(Script script)
    {
        QString text;
        for (int i = 0; i < records; ++i)
            text += record(i, script);
        file.writeTextData(text);
        bytes = text.toUtf8();
        const int fd = ::open(qPrintable(folders.moravelDataFile()), O_RDONLY | O_CLOEXEC);
        mapped = static_cast<const char *>(::mmap(nullptr, std::size_t(bytes.size()), PROT_READ,
                                                  MAP_PRIVATE | MAP_POPULATE, fd, 0));
        ::close(fd);
    }

    ~Bench() { ::munmap(const_cast<char *>(mapped), std::size_t(bytes.size())); }
    Q_DISABLE_COPY_MOVE(Bench)

    BenchFiles files;
    NoAlerts alerts;
    moravel::Dates dates{u"en_US"_s};
    moravel::Folders folders{files, alerts};
    moravel::RecordFile file{folders, files, alerts, dates,
                             [](const QString &) { return QString(); }};
    QByteArray bytes;
    const char *mapped = nullptr;
};

const QString lastDay = u"11/4/2010"_s; // the day of the last records

const void *search(const Bench &b, const QByteArray &needle)
{
    return ::memmem(b.mapped, std::size_t(b.bytes.size()), needle.constData(),
                    std::size_t(needle.size()));
}

void bareMemmem(benchmark::State &state)
{
    const Bench b(Script(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(search(b, "/large99999.jpg\t"));
}

void bareMissingMemmem(benchmark::State &state)
{
    const Bench b(Script(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(search(b, "/missing.jpg\t"));
        benchmark::DoNotOptimize(search(b, "/missing\t"));
    }
}

void lookUpByKey(benchmark::State &state)
{
    Bench b(Script(state.range(0)));
    for (auto _ : state) {
        if (b.file.storedDataFor(u"source39"_s, lastDay).isEmpty())
            state.SkipWithError("not found");
    }
}

void lookUpByFile(benchmark::State &state)
{
    Bench b(Script(state.range(0)));
    for (auto _ : state) {
        if (b.file.storedDataForFile(u"large99999.jpg"_s, false).isEmpty())
            state.SkipWithError("not found");
    }
}

void lookUpMissingFile(benchmark::State &state)
{
    Bench b(Script(state.range(0)));
    for (auto _ : state) {
        if (!b.file.storedDataForFile(u"missing.jpg"_s, false).isEmpty())
            state.SkipWithError("found");
    }
}

void bareWrite(benchmark::State &state)
{
    Bench b(English);
    const QByteArray target = QFile::encodeName(b.folders.moravelDataFile());
    const QByteArray part = target + ".bare";
    for (auto _ : state) {
        const int fd = ::open(part.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        const bool written =
            ::write(fd, b.bytes.constData(), std::size_t(b.bytes.size())) == b.bytes.size();
        if (!written || ::fsync(fd) != 0 || std::rename(part.constData(), target.constData()) != 0)
            state.SkipWithError("not written");
        ::close(fd);
    }
}

void store(benchmark::State &state)
{
    Bench b(English);
    const QString line = record(records / 2, English).chopped(1);
    for (auto _ : state) {
        if (!b.file.saveStoredData(line))
            state.SkipWithError("not stored");
    }
}

} // namespace

BENCHMARK(bareMemmem)->Arg(English)->Arg(Mixed)->Unit(benchmark::kMillisecond);
BENCHMARK(bareMissingMemmem)->Arg(English)->Arg(Mixed)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpByKey)->Arg(English)->Arg(Mixed)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpByFile)->Arg(English)->Arg(Mixed)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpMissingFile)->Arg(English)->Arg(Mixed)->Unit(benchmark::kMillisecond);
BENCHMARK(bareWrite)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(store)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
