// SPDX-License-Identifier: MIT
#include "app/Translations.h"

#include "app/Logging.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace moravel {

namespace {

const QString OwnFolder = QStringLiteral(":/moravel/translations");
const QString OwnPrefix = QStringLiteral("moravel_");

QStringList ownLanguages()
{
    QStringList languages = QDir(OwnFolder).entryList({OwnPrefix + u'*'});
    for (QString &name : languages)
        name = name.mid(OwnPrefix.size()).section(u'.', 0, 0);
    return languages;
}

bool install(QCoreApplication &app, const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(&app);
    return translator->load(file, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

QString languageFor(const QStringList &wanted, const QStringList &speaks)
{
    for (const QString &one : wanted) {
        const QLocale locale(one);
        const QString language = locale.name().section(u'_', 0, 0);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return {};
        for (const QString &name : {locale.name(), language}) {
            if (speaks.contains(name))
                return name;
        }
    }
    return {};
}

void installTranslations(QCoreApplication &app, const QStringList &wanted)
{
    const QString language = languageFor(wanted, ownLanguages());
    if (language.isEmpty() || !install(app, OwnPrefix + language, OwnFolder))
        return;
    // Qt's words come first: a translator that is installed later is asked earlier.
    if (!install(app, QStringLiteral("qtbase_") + language,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        qCInfo(lcApp) << "no translation of Qt's own texts:" << language;
    if (qobject_cast<QGuiApplication *>(&app)) // a command has no windows
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

} // namespace moravel
