// SPDX-License-Identifier: MIT
#pragma once

#include "base/DatePicker.h"
#include "base/Dates.h"
#include "platform/Platform.h"
#include "service/ServicePorts.h"
#include "service/SourceNames.h"
#include "store/Folders.h"
#include "store/PictureLinks.h"
#include "store/RecordFile.h"
#include "store/RecordUpdates.h"
#include "thumb/ThumbCells.h"

namespace moravel {

/// What the service client works with; lent for its whole life.
struct ServiceContext
{
    Platform &platform;
    const Dates &dates;
    DatePicker &datePicker;
    ThumbCells &cells;
    SourceNames &sourceNames;
    Folders &folders;
    RecordFile &records;
    RecordUpdates &updates;
    PictureLinks &links;
    const ServicePorts &ports;
};

} // namespace moravel
