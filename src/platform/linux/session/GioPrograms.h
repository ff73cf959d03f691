// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DefaultPrograms.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

namespace moravel {

/// Looks the programs up in the desktop's own files, in a thread of its own: there are hundreds of them.
class GioPrograms : public QObject, public DefaultPrograms
{
    Q_OBJECT

public:
    /// Begins to look up the web browser and the mail program.
    GioPrograms();
    ~GioPrograms() override;

    /// Returns what the last look-up found, and looks again.
    QString iconForScheme(const QString &scheme) override;

private:
    void lookUp(const QString &scheme);
    void found(const QString &scheme, const QString &icon);

    struct Icon
    {
        QString icon;
        bool isLookedUp = false; ///< At the moment.
    };

    QHash<QString, Icon> m_icons;
    QThreadPool m_pool;
};

} // namespace moravel
