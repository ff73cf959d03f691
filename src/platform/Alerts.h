// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Shows messages that the user must see.
class Alerts
{
public:
    virtual ~Alerts() = default;

    /// Shows an alert with one button, "OK". Returns at once; an alert equal to one still open is not
    /// shown again.
    virtual void alert(const QString &title, const QString &text) = 0;
};

} // namespace moravel
