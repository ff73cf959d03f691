// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <QPointer>
#include <QString>

namespace moravel {

/// One queued request.
struct Connector
{
    QString URL; ///< The full address, query included.
    QPointer<ThumbView> thumb; ///< The cell that the answer is for; not owned.
    QString processMethod; ///< Name of the operation that gets the answer; empty: none.
    QString connectionDate; ///< The cell's date when the request was queued.
};

} // namespace moravel
