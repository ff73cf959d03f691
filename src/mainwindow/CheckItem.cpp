// SPDX-License-Identifier: MIT
#include "mainwindow/CheckItem.h"

namespace moravel {

QAction *makeCheckItem(const QString &title, QObject *parent, std::function<void()> command)
{
    auto *item = new QAction(title, parent);
    item->setCheckable(true);
    QObject::connect(item, &QAction::triggered, item, [item, command = std::move(command)] {
        item->setChecked(!item->isChecked()); // Qt has flipped the mark already
        command();
    });
    return item;
}

QString menuTitle(const QString &text)
{
    constexpr int Longest = 80;
    QString title = text.simplified();
    if (title.size() > Longest)
        title = title.left(Longest - 1) + QChar(0x2026);
    for (QChar &c : title) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return title.replace(u'&', QStringLiteral("&&"));
}

} // namespace moravel
