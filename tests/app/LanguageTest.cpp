// SPDX-License-Identifier: MIT
// The application in other languages than its sources'.
#include "App.h"

#include "app/Translations.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>

namespace {

/// German, with marks around every text that a translation was found for.
class Marked : public QTranslator
{
public:
    Marked() { EXPECT_TRUE(m_german.load(u":/moravel/translations/moravel_de"_s)); }

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
        u"\u00AB[^\u00BB]*\u00BB|<[^>]*>|&amp;|\\((Ctrl|Alt|Del|F\\d)[^)]*\\)|"
        "Moravel|Astronomy|Sea &+ ?(amp;)?Land|Caption [AB]|(Monday, )?July "
        "\\d|Info|IMG|OK|Close"_s);
    static const QRegularExpression word(u"[A-Za-z]{2}"_s);
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

void expectNew(const QKeySequence &keys, QStringList &known)
{
    EXPECT_FALSE(known.contains(keys.toString())) << qPrintable(keys.toString());
    if (!keys.isEmpty())
        known.append(keys.toString());
}

void expectDistinct(const QList<QAction *> &items, QStringList mnemonics, QStringList &shortcuts)
{
    for (const QAction *item : items) {
        SCOPED_TRACE(qPrintable(item->text()));
        EXPECT_NE(item->isSeparator(), !item->text().isEmpty());
        expectNew(QKeySequence::mnemonic(item->text()), mnemonics);
        expectNew(item->shortcut(), shortcuts);
        if (item->menu())
            expectDistinct(item->menu()->actions(), {}, shortcuts);
    }
}

TEST(LanguageTest, runsInTheDirectionOfItsLanguageWithAKeyForEachItem)
{
    for (const char *language : {"en", "de", "ar"}) {
        SCOPED_TRACE(language);
        const TempHome home;
        installTranslations(*qApp, {QLatin1String(language)});
        App app(home, allSources(), true);
        app.run(20);
        EXPECT_EQ(app.delegate.window().isRightToLeft(), QLatin1String(language) == u"ar");
        QStringList mnemonics, shortcuts;
        for (const auto *button : app.delegate.window().findChildren<QPushButton *>())
            expectNew(QKeySequence::mnemonic(button->text()), mnemonics);
        expectDistinct(app.delegate.window().menuBar()->actions(), mnemonics, shortcuts);
        EXPECT_GT(shortcuts.size(), 6);
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
}

TEST(LanguageTest, englishEndsTheSearch)
{
    const QStringList speaks{u"ar"_s, u"de"_s, u"pt_BR"_s};
    const Table<const char *, const char *> table{
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
