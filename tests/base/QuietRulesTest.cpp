// SPDX-License-Identifier: MIT
#include "base/QuietRules.h"

#include "support/Test.h"

#include <QSet>

namespace {

TEST(QuietRules, sayWhyNothingHappensUnasked)
{
    const Table<SurroundingsState, QuietVerdict, QuietVerdict> cases{
        {{}, {}, {}},
        {{.powerSaver = true}, {QuietReason::PowerSaver, QuietReason::PowerSaver}, {}},
        {{.lowBattery = true}, {QuietReason::LowBattery, QuietReason::LowBattery}, {}},
        {{.metered = true}, {QuietReason::Metered, QuietReason::Metered}, {}},
        {{.fullScreen = true}, {QuietReason::FullScreen, QuietReason::FullScreen}, {}},
        {{.locked = true}, {QuietReason::Locked, QuietReason::Locked}, {}},
        // Pictures that are here can be shown without a connection.
        {{.offline = true},
         {QuietReason::Offline, QuietReason::None},
         {QuietReason::Offline, QuietReason::None}},
        {{.metered = true, .offline = true, .locked = true},
         {QuietReason::Locked, QuietReason::Locked},
         {QuietReason::Offline, QuietReason::None}},
    };

    QSet<QString> texts;
    for (const auto &[state, wanted, notWanted] : cases) {
        SCOPED_TRACE(qPrintable(waitingDownloadText(wanted.download)));
        EXPECT_EQ(quietVerdict(state, true), wanted);
        EXPECT_EQ(quietVerdict(state, false), notWanted);
        texts.insert(waitingDownloadText(wanted.download));
        EXPECT_EQ(waitingRotationText(wanted.rotation).isEmpty(), wanted.mayRotate());
    }
    EXPECT_EQ(texts.size(), 7); // each reason its own, and none for none
}

} // namespace
