// SPDX-License-Identifier: MIT
// The application in other languages than its sources'.
#include "App.h"

#include "app/Translations.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

/// German, with marks around every text that a translation was found for.
class Marked : public QTranslator
{
public:
    Marked() { EXPECT_TRUE(m_german.load(QStringLiteral(":/moravel/translations/moravel_de"))); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *comment,
                      int n) const override
    {
        const QString found = m_german.translate(context, text, comment, n);
        return found.isEmpty() ? found : QChar(0x00AB) + found + QChar(0x00BB);
    }

private:
    QTranslator m_german;
};

Options allSources()
{
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    return options;
}

/// The texts that a user can see or hear of an object.
QStringList textsOf(const QObject *object)
{
    QStringList texts;
    for (const char *name :
         {"text", "title", "toolTip", "placeholderText", "accessibleName", "windowTitle"})
        texts += object->property(name).toString();
    if (const auto *combo = qobject_cast<const QComboBox *>(object))
        texts += combo->itemText(0);
    return texts;
}

bool saysMore(QString text)
{
    static const QRegularExpression known(
        QStringLiteral("\u00AB[^\u00BB]*\u00BB|<[^>]*>|&amp;|\\((Ctrl|Alt|Del|F\\d)[^)]*\\)|"
                       "Moravel|Astronomy|Sea &+ ?(amp;)?Land|Caption [AB]|(Monday, )?July "
                       "\\d|Info|IMG|OK|Close"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
    return text.remove(known).contains(word);
}

TEST(LanguageTest, everythingOnScreenIsTranslated)
{
    const TempHome home;
    Marked marked;
    QCoreApplication::installTranslator(&marked);
    App app(home, allSources(), true);
    app.run(20);
    for (auto *action : app.delegate.window().findChildren<QAction *>()) {
        const bool leaves =
            action->shortcut() == QKeySequence::Quit || action->shortcut() == QKeySequence::Close;
        if (!action->isCheckable() && !action->menu() && !leaves)
            action->trigger(); // opens every window that there is
    }
    app.run(20);
    int seen = 0;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        QObjectList objects = window->findChildren<QObject *>();
        objects.append(window);
        for (const QObject *object : std::as_const(objects)) {
            for (const QString &text : textsOf(object)) {
                EXPECT_FALSE(saysMore(text))
                    << qPrintable(text) << object->metaObject()->className();
                seen += text.contains(QChar(0x00AB));
            }
        }
    }
    EXPECT_GT(seen, 200);
}

void expectDistinct(const QList<QAction *> &items)
{
    QList<QKeySequence> mnemonics;
    for (const QAction *item : items) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(item->text());
        EXPECT_FALSE(!mnemonic.isEmpty() && mnemonics.contains(mnemonic))
            << qPrintable(item->text());
        mnemonics += mnemonic;
        if (item->menu())
            expectDistinct(item->menu()->actions());
    }
}

TEST(LanguageTest, runsInTheDirectionOfItsLanguageWithAKeyForEachItem)
{
    for (const char *language : {"de", "ar"}) {
        const TempHome home;
        installTranslations(*qApp, {QLatin1String(language)});
        App app(home, allSources(), true);
        app.run(20);
        EXPECT_EQ(app.delegate.window().isRightToLeft(), QLatin1String(language) == u"ar");
        expectDistinct(app.delegate.window().menuBar()->actions());
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
}

TEST(LanguageTest, englishEndsTheSearch)
{
    const QStringList speaks{QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("pt_BR")};
    const std::pair<const char *, const char *> table[] = {
        {"de-AT de", "de"}, {"fr ar-Arab-EG", "ar"}, {"pt-BR", "pt_BR"},
        {"pt-PT", ""},      {"en-GB de", ""},        {"C", ""},
        {"", ""},
    };
    for (const auto &[wanted, language] : table)
        EXPECT_EQ(languageFor(QString::fromLatin1(wanted).split(u' ', Qt::SkipEmptyParts), speaks),
                  QLatin1String(language))
            << wanted;
}

} // namespace
} // namespace moravel
