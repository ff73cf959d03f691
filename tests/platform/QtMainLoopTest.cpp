// SPDX-License-Identifier: MIT
#include "platform/qt/QtMainLoop.h"

#include "support/Test.h"

namespace {

constexpr double Day = 86'400;

struct QtMainLoopTest : ::testing::Test
{
    std::function<void()> note(const char *name)
    {
        return [this, name] { events += QLatin1String(name); };
    }

    /// Waits until so many events came, and lets what is due besides come too.
    QString seen(qsizetype count)
    {
        EXPECT_TRUE(waitFor([&] { return events.size() >= count; }));
        bool settled = false;
        QTimer::singleShot(30, &context, [&] { settled = true; });
        EXPECT_TRUE(waitFor([&] { return settled; }));
        return events.join(u' ');
    }

    QObject context;
    QStringList events;
    QtMainLoop loop;
};

TEST_F(QtMainLoopTest, FiresInDueOrderNeverFromWithin)
{
    const auto late = loop.after(0.02, note("late"));
    const auto soon = loop.after(0.01, note("soon"));
    const auto never = loop.after(60 * Day, note("never"));
    const auto forever = loop.every(1e300, note("never"));
    loop.schedule(0, note("first"));
    loop.schedule(0, note("second"));
    loop.schedule(-5, note("past"));
    EXPECT_TRUE(events.isEmpty());
    EXPECT_EQ(seen(5), u"first second past soon late"_s);
}

TEST_F(QtMainLoopTest, LetsTheWindowAnswerBetweenCalls)
{
    for (int i = 0; i < 3; ++i) {
        loop.schedule(0, [this] {
            events += u"call"_s;
            QMetaObject::invokeMethod(&context, note("window"), Qt::QueuedConnection);
        });
    }
    EXPECT_EQ(seen(6), u"call window call window call window"_s);
}

TEST_F(QtMainLoopTest, WaitsForEveryHoldAndThenKeepsTheDueOrder)
{
    LoopHoldHandle outer = loop.hold();
    LoopHoldHandle inner = loop.hold();
    loop.schedule(0.005, note("due second"));
    loop.schedule(0, note("due first"));
    const auto cancelled = std::make_unique<DelayedCallHandle>(loop.after(0, note("cancelled")));
    bool elapsed = false;
    QTimer::singleShot(20, &context, [&] { elapsed = true; });
    MORAVEL_WAIT(elapsed);
    loop.inOrder(note("answer"));
    cancelled->reset();
    outer.reset();
    EXPECT_TRUE(events.isEmpty());
    inner.reset();
    EXPECT_TRUE(events.isEmpty());
    loop.inOrder(note("next answer"));
    loop.schedule(0, note("last"));
    EXPECT_EQ(seen(5), u"due first due second answer next answer last"_s);
    loop.inOrder(note("at once"));
    EXPECT_EQ(events.last(), u"at once"_s);
}

TEST_F(QtMainLoopTest, HoldsAgainFromWithinACall)
{
    LoopHoldHandle hold;
    loop.schedule(0, [&] {
        hold = loop.hold();
        loop.inOrder(note("answer"));
        events += u"held"_s;
    });
    loop.schedule(0, note("after"));
    EXPECT_EQ(seen(1), u"held"_s);
    hold.reset();
    EXPECT_EQ(seen(3), u"held after answer"_s);
}

TEST_F(QtMainLoopTest, CancelsByDestroyingTheHandle)
{
    const auto captured = std::make_shared<int>(1);
    loop.after(Day, [captured] {}).reset();
    EXPECT_EQ(captured.use_count(), 1);
    DelayedCallHandle other = loop.after(0.001, note("other"));
    DelayedCallHandle self;
    self = loop.after(0, [&, big = QByteArray(1000, 'x')] {
        self.reset();
        other.reset();
        events += QString::number(big.size()); // what it captured is still there
    });
    DelayedCallHandle ticking;
    int ticks = 0;
    ticking = loop.every(0.001, [&] {
        if (++ticks == 3)
            ticking.reset();
        events += u"tick"_s;
    });
    DelayedCallHandle replaced = loop.after(0.005, note("replaced"));
    replaced = loop.after(0.005, note("replacement"));
    seen(5);
    events.sort(); // a busy machine may be late with the ticks
    EXPECT_EQ(events.join(u' '), u"1000 replacement tick tick tick"_s);
}

TEST_F(QtMainLoopTest, DropsTicksThatFellIntoAHold)
{
    LoopHoldHandle hold = loop.hold();
    DelayedCallHandle ticking = loop.every(0.001, note("tick"));
    bool elapsed = false;
    QTimer::singleShot(50, &context, [&] { elapsed = true; });
    MORAVEL_WAIT(elapsed);
    hold.reset();
    qsizetype ticksBeforeEnd = -1;
    loop.schedule(0, [&] { ticksBeforeEnd = events.size(); });
    MORAVEL_WAIT(ticksBeforeEnd >= 0);
    EXPECT_LE(ticksBeforeEnd, 1) << "a burst of missed ticks";
    MORAVEL_WAIT(events.size() >= 3);
}

TEST_F(QtMainLoopTest, HandlesMayOutliveTheLoop)
{
    auto other = std::make_unique<QtMainLoop>();
    const DelayedCallHandle call = other->after(0, note("call"));
    const LoopHoldHandle hold = other->hold();
    auto nested = std::make_shared<DelayedCallHandle>(other->after(0, note("nested")));
    const std::weak_ptr<DelayedCallHandle> watched = nested;
    other->schedule(0, [nested = std::move(nested)] {});
    other.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(seen(0), QString());
}

TEST_F(QtMainLoopTest, MayBeDestroyedByItsOwnCall)
{
    auto other = std::make_unique<QtMainLoop>();
    const DelayedCallHandle call = other->every(0.001, [&] {
        events += u"gone"_s;
        other.reset();
    });
    EXPECT_EQ(seen(1), u"gone"_s);
}

} // namespace
