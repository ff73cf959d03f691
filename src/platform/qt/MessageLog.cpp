// SPDX-License-Identifier: MIT
#include "platform/qt/MessageLog.h"

#include <QMessageLogContext>

#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace moravel {

namespace {

// The service manager tells device and inode of the stream that it has connected to the journal.
bool isJournal(int file)
{
    struct stat stream = {};
    if (fstat(file, &stream) != 0)
        return false;
    return qgetenv("JOURNAL_STREAM")
        == QByteArray::number(quint64(stream.st_dev)) + ':'
        + QByteArray::number(quint64(stream.st_ino));
}

// Levels of syslog.
char levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return '7';
    case QtInfoMsg:
        return '6';
    case QtWarningMsg:
        return '4';
    case QtCriticalMsg:
        return '3';
    case QtFatalMsg:
        return '2';
    }
    return '5';
}

void write(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const bool journal = isJournal(STDERR_FILENO);
    const QByteArray line = logLine(type, context.category, text, journal);
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

QByteArray logLine(QtMsgType type, const char *category, const QString &text, bool forJournal)
{
    QByteArray line;
    if (forJournal)
        line.append('<').append(levelOf(type)).append('>');
    if (category && qstrcmp(category, "default") != 0)
        line.append(category).append(": ");
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            line += "\\n";
        else if (byte < 0x20 || byte == 0x7F)
            line += "\\x" + QByteArray(1, c).toHex();
        else
            line += c;
    }
    return line + '\n';
}

void installMessageLog()
{
    qInstallMessageHandler(write);
}

} // namespace moravel
