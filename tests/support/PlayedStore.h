// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakeHttp.h"
#include "support/FakeImages.h"
#include "support/FakeMainLoop.h"
#include "support/FakePlatform.h"
#include "support/HomeFiles.h"

#include "base/Dates.h"
#include "base/Preferences.h"
#include "platform/Platform.h"
#include "store/Folders.h"
#include "store/LegacyCaptions.h"
#include "store/PictureLinks.h"
#include "store/RecordFile.h"
#include "store/RecordUpdates.h"
#include "thumb/ThumbCells.h"

namespace moravel::testing {

/// A store on a real disk and a virtual clock, and the cells that show it.
struct PlayedStore
{
    explicit PlayedStore(const QDateTime &start = QDateTime(QDate(2011, 7, 4), QTime(9, 30)))
        : loop(start)
    {
        cells.createSpecialCells(start);
    }

    Q_DISABLE_COPY_MOVE(PlayedStore)

    QString pictureFolder() const { return home.path(QStringLiteral("Pictures/Moravel/")); }

    TempHome home;
    FakeMainLoop loop;
    FakeHttp http;
    FakeDefaults defaults;
    HomeFiles files{home};
    FakeAlerts alerts;
    FakeImages images;
    FakeRandom random;
    Platform platform{loop, http, defaults, files, alerts, images, random};
    Dates dates{QStringLiteral("en_US")};
    Preferences preferences{defaults};
    ThumbCells cells{{images.resource({}), images.resource({}), images.resource({})}, {}};
    QMap<QString, QString> names; ///< Long names of the sources, by short name.
    Folders folders{files, alerts};
    LegacyCaptions legacy{folders, files, dates, names};
    RecordFile records{folders, files, alerts, dates,
                       [this](const QString &name) { return legacy.oldStoredDataForFile(name); }};
    RecordUpdates updates{records, legacy, dates};
    PictureLinks links{folders, files};
};

} // namespace moravel::testing
