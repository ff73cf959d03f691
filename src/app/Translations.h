// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace moravel {

/// Returns which of the languages that the program @p speaks ("de", "pt_BR") serves a user best who wants
/// @p wanted ("de-AT", "en-US"), the most wanted first. Empty for English, the language of the sources,
/// and when none fits: what is wanted after English is not looked at.
QString languageFor(const QStringList &wanted, const QStringList &speaks);

/// Has the program and Qt's own texts speak the user's language from now on, and the windows run in its
/// direction. To be called before the first text is made. How dates and numbers are written follows the
/// user's region, whatever the language.
void installTranslations(QCoreApplication &app, const QStringList &wanted);

} // namespace moravel
