// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// The programs that the user has chosen for addresses. Main thread only.
class DefaultPrograms
{
public:
    virtual ~DefaultPrograms() = default;

    /// Returns the icon of the program that opens addresses of @p scheme ("https", "mailto"): the absolute
    /// path of a file, or a name of the icon theme; "" when it is not known. Never waits: a change of the
    /// user's choice may show at a later call only.
    virtual QString iconForScheme(const QString &scheme) = 0;
};

} // namespace moravel
