// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace moravel {

/// Differs between any two states of the files of any two paths, as far as the system can tell.
QByteArray fileStamp(const QString &path);

} // namespace moravel
