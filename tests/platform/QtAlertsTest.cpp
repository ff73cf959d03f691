// SPDX-License-Identifier: MIT
#include "platform/qt/QtAlerts.h"

#include "support/Test.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

namespace {

QList<QMessageBox *> openBoxes()
{
    QList<QMessageBox *> boxes;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
            boxes.append(box);
    }
    return boxes;
}

const QString Title = u"Error storing Moravel data."_s;

TEST(QtAlerts, ShowsOneOkAndNoMarkup)
{
    QtAlerts alerts;
    const QString markup = u"<b>bold</b> <img src=\"file:///etc/passwd\"> &amp;"_s;
    alerts.alert(markup, markup);
    const auto boxes = openBoxes();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes.first()->standardButtons(), QMessageBox::Ok);
    int texts = 0;
    for (const QLabel *label : boxes.first()->findChildren<QLabel *>()) {
        texts += label->text() == markup ? 1 : 0;
        EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
    }
    EXPECT_EQ(texts, 2);
}

TEST(QtAlerts, BlocksItsWindowOnlyOnceThereIsOne)
{
    QtAlerts alerts;
    QWidget window;
    alerts.setParentWindow(&window);
    for (const bool isShown : {false, true}) {
        window.setVisible(isShown);
        alerts.alert(Title, QString());
        ASSERT_EQ(openBoxes().size(), 1);
        EXPECT_EQ(openBoxes()[0]->windowModality(), isShown ? Qt::WindowModal : Qt::NonModal);
        EXPECT_EQ(openBoxes()[0]->parentWidget() == &window, isShown);
        delete openBoxes()[0];
    }
}

TEST(QtAlerts, DoesNotStackEqualOnes)
{
    QtAlerts alerts;
    const QString longText = QString(50'000, u'x');
    for (int i = 0; i < 3; ++i) {
        alerts.alert(Title, longText);
        alerts.alert(Title, QString());
    }
    ASSERT_EQ(openBoxes().size(), 2);
    EXPECT_LT(openBoxes().first()->informativeText().size(), 5000);
    const int screenWidth = openBoxes().first()->screen()->availableGeometry().width();
    for (QMessageBox *box : openBoxes()) {
        EXPECT_LE(box->width(), screenWidth);
        box->button(QMessageBox::Ok)->click();
    }
    EXPECT_TRUE(openBoxes().isEmpty());
    alerts.alert(Title, longText);
    EXPECT_EQ(openBoxes().size(), 1) << "shown again once it was closed";
}

TEST(QtAlerts, StopsAtTwenty)
{
    expectWarning(u"too many open alerts"_s);
    {
        QtAlerts alerts;
        for (int i = 0; i < 30; ++i)
            alerts.alert(Title, QString::number(i));
        EXPECT_EQ(openBoxes().size(), 20);
    }
    EXPECT_TRUE(openBoxes().isEmpty());
}

} // namespace
