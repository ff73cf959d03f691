// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QImage>
#include <QSize>
#include <QString>

namespace moravel::server {

/// What is said of the picture of a day: plain text, one line each, no tabs.
struct DayText
{
    QString caption; ///< One short line, true of what is seen.
    QString info; ///< Two or three sentences with the day's figures.
};

/// A picture of the day that is computed: the same pixels for the same date and size, on every machine
/// and at every call. Stateless; all functions may be called from several threads at once.
class ComputedSource
{
public:
    virtual ~ComputedSource() = default;

    virtual QString shortName() const = 0; ///< Identifier in requests: ASCII letters only.
    virtual QString longName() const = 0; ///< Display name.
    virtual QString credit() const = 0; ///< Who made it and under which terms, one sentence.

    virtual DayText text(QDate date) const = 0;

    /// Renders the picture of @p date, filling @p size in pixels (any aspect ratio, 16 to 8192 a side),
    /// opaque. The composition is the same at every size.
    virtual QImage render(QDate date, QSize size) const = 0;
};

} // namespace moravel::server
