// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace moravel {

/// A question with some answers; the first button is the default one.
struct Question
{
    QString title;
    QString text;
    QStringList buttons;
};

/// Asks as a sheet of @p window. Gives the index of the button, or -1 when it was dismissed; the first
/// button stands for Escape.
void askQuestion(QWidget *window, const Question &question, std::function<void(int)> answer);

} // namespace moravel
