// SPDX-License-Identifier: MIT
#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace moravel {

void QtClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace moravel
