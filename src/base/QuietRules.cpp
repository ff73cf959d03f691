// SPDX-License-Identifier: MIT
#include "base/QuietRules.h"

#include "platform/Texts.h"

namespace moravel {

namespace {

QuietReason reasonFor(const SurroundingsState &state)
{
    if (state.locked)
        return QuietReason::Locked;
    if (state.fullScreen)
        return QuietReason::FullScreen;
    if (state.metered)
        return QuietReason::Metered;
    if (state.powerSaver)
        return QuietReason::PowerSaver;
    return state.lowBattery ? QuietReason::LowBattery : QuietReason::None;
}

QString because(QuietReason reason)
{
    switch (reason) {
    case QuietReason::None:
        return {};
    case QuietReason::Locked:
        return Texts::tr("the screen is locked");
    case QuietReason::FullScreen:
        return Texts::tr("another program fills the screen");
    case QuietReason::Metered:
        return Texts::tr("the connection is metered");
    case QuietReason::PowerSaver:
        return Texts::tr("the battery is being saved");
    case QuietReason::LowBattery:
        return Texts::tr("the battery is low");
    case QuietReason::Offline:
        return Texts::tr("there is no connection");
    }
    return {};
}

} // namespace

QuietVerdict quietVerdict(const SurroundingsState &state, bool isWanted)
{
    const QuietReason reason = isWanted ? reasonFor(state) : QuietReason::None;
    const bool onlyOffline = reason == QuietReason::None && state.offline;
    return {onlyOffline ? QuietReason::Offline : reason, reason};
}

QString waitingDownloadText(QuietReason reason)
{
    if (reason == QuietReason::None)
        return {};
    return Texts::tr("New pictures wait, since %1.").arg(because(reason));
}

QString waitingRotationText(QuietReason reason)
{
    if (reason == QuietReason::None)
        return {};
    return Texts::tr("New desktop waits, since %1").arg(because(reason));
}

} // namespace moravel
