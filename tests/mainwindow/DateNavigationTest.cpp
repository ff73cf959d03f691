// SPDX-License-Identifier: MIT
#include "WindowFixture.h"

#include "mainwindow/DatePickerWidget.h"

#include <QCalendarWidget>
#include <QToolButton>

namespace {

QDateTime at(int day, int hour = 9, int minute = 30)
{
    return QDateTime(QDate(2011, 7, day), QTime(hour, minute));
}

struct DateNavigationTest : ::testing::Test
{
    void click(const char *button)
    {
        QTest::mouseClick(w.find<QToolButton>(button), Qt::LeftButton);
    }

    void expectButtons(bool prev, bool next, bool today)
    {
        EXPECT_EQ(w.find("prevDayButton")->isEnabled(), prev);
        EXPECT_EQ(w.find("nextDayButton")->isEnabled(), next);
        EXPECT_EQ(w.find("todayButton")->isEnabled(), today);
    }

    WindowFixture w; // today is 4 July 2011, 9:30
};

} // namespace

TEST_F(DateNavigationTest, StepsThroughTheDays)
{
    expectButtons(true, false, false);
    EXPECT_FALSE(w.datePicker.userChangeDate);
    click("prevDayButton");
    EXPECT_EQ(w.datePicker.dateValue(), at(3));
    EXPECT_EQ(w.find<DatePickerWidget>("datePicker")->date(), QDate(2011, 7, 3));
    expectButtons(true, true, true);
    EXPECT_TRUE(w.datePicker.userChangeDate);
    EXPECT_EQ(w.forgotten, 1);
    EXPECT_EQ(w.passes, QList<double>{0.1});

    click("nextDayButton"); // exactly the latest moment again
    EXPECT_EQ(w.datePicker.dateValue(), at(4));
    expectButtons(true, false, false);
    EXPECT_EQ(w.passes.size(), 2);
}

TEST_F(DateNavigationTest, ComparesInstantsWithTheLimitAndDaysWithTheShownDay)
{
    // shown, proposed; the buttons for the next day and today, chosen by the user, passes
    const Table<const char *, QDateTime, QDateTime, bool, bool, bool, int> cases{
        {"another day", at(4), at(2), true, true, true, 1},
        {"the limit itself", at(2), at(4), false, false, true, 1},
        {"today, but not the limit's time", at(2), at(4, 8), true, true, true, 1},
        {"later than the limit becomes it", at(2), at(6), false, false, true, 1},
        {"a minute to midnight is still that day", at(3), at(3, 23, 59), true, false, false, 0},
        {"the same day, though it is not today", at(2), at(2), true, false, false, 0},
    };

    for (const auto &[what, shown, proposed, next, today, user, passes] : cases) {
        SCOPED_TRACE(what);
        w.datePicker.setDateValue(at(1));
        w.datePicker.setDateValue(shown);
        w.passes.clear();
        w.datePicker.setDateValue(proposed);
        expectButtons(true, next, today);
        EXPECT_EQ(w.datePicker.userChangeDate, user);
        EXPECT_EQ(w.passes.size(), passes);
    }
}

TEST_F(DateNavigationTest, LeavesTheProgramsOwnChangeAlone)
{
    w.datePicker.autoChangeDate = true;
    w.datePicker.setDateValue(at(1));
    EXPECT_FALSE(w.datePicker.autoChangeDate);
    EXPECT_FALSE(w.datePicker.userChangeDate);
    EXPECT_EQ(w.forgotten, 0);
    EXPECT_TRUE(w.passes.isEmpty());
    expectButtons(true, false, false);
    EXPECT_EQ(w.find<DatePickerWidget>("datePicker")->date(), QDate(2011, 7, 1));
}

TEST_F(DateNavigationTest, GoesToTheNewDayWhenTodayIsAskedForAfterMidnight)
{
    click("prevDayButton");
    w.loop.advance(86400);
    click("todayButton");
    EXPECT_EQ(w.datePicker.dateValue(), w.loop.now());
    EXPECT_EQ(w.datePicker.maximumDate(), w.loop.now());
    expectButtons(true, false, false);

    click("prevDayButton");
    w.loop.advance(3600); // the same day: the latest moment stays where it was
    click("todayButton");
    EXPECT_EQ(w.datePicker.dateValue(), at(5));
    expectButtons(true, false, false);
}

TEST_F(DateNavigationTest, CalendarChangesTheDayAndKeepsTheTime)
{
    auto *picker = w.find<DatePickerWidget>("datePicker");
    EXPECT_EQ(picker->maximumDate(), QDate(2011, 7, 4));
    QTest::keyClick(picker, Qt::Key_Up); // makes the calendar ready; later than today is refused
    EXPECT_TRUE(w.passes.isEmpty());
    QTest::keyClick(picker, Qt::Key_Left);
    QCalendarWidget *calendar = picker->calendarWidget();

    picker->setDate(QDate(2011, 7, 1));
    EXPECT_EQ(w.datePicker.dateValue(), at(1));
    expectButtons(true, true, true);
    QTest::keyClick(picker, Qt::Key_Left);
    Q_EMIT calendar->clicked(QDate(2011, 7, 1)); // the shown day again
    expectButtons(true, true, false);
    EXPECT_EQ(w.passes.size(), 1);
    picker->setDate(QDate(2011, 7, 4));
    EXPECT_EQ(w.datePicker.dateValue(), w.datePicker.maximumDate());
    expectButtons(true, false, false);
}
