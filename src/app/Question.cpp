// SPDX-License-Identifier: MIT
#include "app/Question.h"

#include <QMessageBox>
#include <QPushButton>

namespace moravel {

void askQuestion(QWidget *window, const Question &question, std::function<void(int)> answer)
{
    auto *box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Question);
    box->setTextFormat(Qt::PlainText);
    box->setText(question.title);
    box->setInformativeText(question.text);
    for (const QString &title : question.buttons) {
        QPushButton *button = box->addButton(title, QMessageBox::ActionRole);
        if (!box->defaultButton()) {
            box->setDefaultButton(button);
            box->setEscapeButton(button);
        }
    }
    QObject::connect(box, &QMessageBox::finished, box, [box, answer = std::move(answer)] {
        answer(static_cast<int>(box->buttons().indexOf(box->clickedButton())));
    });
    box->open();
}

} // namespace moravel
