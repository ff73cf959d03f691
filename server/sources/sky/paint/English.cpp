// SPDX-License-Identifier: MIT
#include "server/sources/sky/paint/English.h"

#include <QLocale>

#include <cmath>

namespace moravel::server::sky {

namespace {

const QLocale &english()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

} // namespace

QString longDate(QDate date)
{
    return english().toString(date, QStringLiteral("d MMMM yyyy"));
}

QString decimal(double value, int digits)
{
    return QString::number(value, 'f', digits);
}

QString grouped(double value)
{
    return english().toString(static_cast<qlonglong>(std::llround(value)));
}

} // namespace moravel::server::sky
