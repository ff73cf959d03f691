// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace moravel {

/// A message with one button, "OK". The texts are plain text and may come from outside.
struct Sheet
{
    enum class Style { Information, Warning };

    Style style = Style::Information;
    QString title;
    QString text; ///< May be empty; a long one scrolls.
};

/// Shows @p sheet on @p window and returns at once; @p ended comes when it is dismissed. A sheet equal to
/// one still open is not stacked on it; its @p ended never comes.
void showSheet(QWidget *window, const Sheet &sheet, std::function<void()> ended = {});

} // namespace moravel
