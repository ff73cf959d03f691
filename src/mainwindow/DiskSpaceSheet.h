// SPDX-License-Identifier: MIT
#pragma once

#include "store/Collection.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLabel;
class QTreeWidget;

namespace moravel {

/// Shows what the collection takes by source, and lets the user set a limit. What the limit means is told
/// before it is accepted.
class DiskSpaceSheet : public QDialog
{
    Q_OBJECT

public:
    /// @param gigabytes the limit as it is; 0 for none.
    DiskSpaceSheet(QWidget *window, int gigabytes);

    /// Fills the sheet; until then it says that it is looking.
    void setCollection(const Collection &collection);

    /// Called when the user accepts, with the limit in GB.
    std::function<void(int gigabytes)> onAccepted;

private:
    QWidget *makeLimitRow(int gigabytes);
    void addRow(const QString &name, const DiskShare &share, bool isAside);
    void tellConsequence();

    Collection m_collection;
    QLabel *m_summary;
    QTreeWidget *m_shares;
    QComboBox *m_limit = nullptr;
    QLabel *m_consequence;
};

/// Bytes of a limit in GB.
constexpr qint64 bytesOfGigabytes(int gigabytes)
{
    return qint64(gigabytes) << 30;
}

} // namespace moravel
