// SPDX-License-Identifier: MIT
// Every text of the program is in every language, whole and with its place markers.
#include "support/Test.h"

#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

/// Context and source text, and what a translator made of them: one form, or one for each kind of number.
using Texts = QMap<std::pair<QString, QString>, QStringList>;

Texts read(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    Texts texts;
    std::pair<QString, QString> key;
    bool counts = false;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"name")
            key.first = xml.readElementText();
        else if (xml.name() == u"message")
            counts = xml.attributes().hasAttribute("numerus"_L1);
        else if (xml.name() == u"source")
            texts[{key.first, key.second = xml.readElementText()}];
        else if (xml.name() == u"numerusform")
            texts[key] += xml.readElementText();
        else if (xml.name() == u"translation" && !counts
                 && !xml.attributes().hasAttribute("type"_L1))
            texts[key] += xml.readElementText();
    }
    return texts;
}

/// What a translation must have in common with its source: place markers, a line end, a mnemonic.
QStringList marks(QString text)
{
    static const QRegularExpression mark(u"%n|%\\d|\n\\z|&(?=\\w)"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    QStringList found;
    for (const auto &match : mark.globalMatch(text.replace("%Ln"_L1, "%n"_L1)))
        found += match.captured();
    found.sort();
    return found;
}

TEST(Translations, areCompleteInEveryLanguage)
{
    const QDir root(QStringLiteral(MORAVEL_SOURCE_DIR));
    const QTemporaryDir scratch;
    const QString collected = scratch.filePath(u"all.ts"_s);
    QProcess lupdate;
    lupdate.setWorkingDirectory(root.path());
    lupdate.start(QStringLiteral(MORAVEL_LUPDATE),
                  {u"-silent"_s, u"-I"_s, u"src"_s, u"src"_s, u"-ts"_s, collected});
    ASSERT_TRUE(lupdate.waitForFinished());
    EXPECT_EQ(lupdate.readAllStandardError(), "") << "a tr() that would not find its text";
    const Texts wanted = read(collected);
    EXPECT_GT(wanted.size(), 200);
    const QDir folder(root.filePath(u"translations"_s));
    const QStringList files = folder.entryList({u"*.ts"_s});
    EXPECT_EQ(files.size(), 2);
    for (const QString &file : files) {
        const Texts texts = read(folder.filePath(file));
        EXPECT_EQ(texts.keys(), wanted.keys()) << "run scripts/update-translations";
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            SCOPED_TRACE(qPrintable(file + ": "_L1 + text.key().second));
            ASSERT_FALSE(text->isEmpty() || text->contains(QString()));
            EXPECT_EQ(marks(text->last()), marks(text.key().second)); // of the greatest numbers
        }
    }
}

} // namespace
