// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QLocale>

namespace moravel {

/// The words that the program says outside of any QObject: `Texts::tr("Hour")` is the text in the user's
/// language. QObjects have a tr() of their own; both are what scripts/update-translations finds.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(moravel)

public:
    /// Returns a number as the user's region writes it, without grouping.
    static QString number(qint64 value) { return region().toString(value); }

    static QString number(double value, int decimals)
    {
        return region().toString(value, 'f', decimals);
    }

private:
    static QLocale region()
    {
        QLocale locale;
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        return locale;
    }
};

} // namespace moravel
