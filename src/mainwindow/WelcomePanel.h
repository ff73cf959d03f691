// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/GridPanel.h"

#include <QStringList>

class QCheckBox;
class QPushButton;

namespace moravel {

/// Greets the user at the first start: all sources with check boxes, ticked, and one button that switches
/// the ticked ones on.
class WelcomePanel : public GridPanel
{
    Q_OBJECT

public:
    /// @p longNames: all sources in grid order.
    explicit WelcomePanel(const QStringList &longNames);

Q_SIGNALS:
    /// The user wants these sources: their tags (1000 plus the index).
    void sourcesChosen(const QList<int> &tags);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QCheckBox *createButtonWithTitle(const QString &longName, int index);
    QWidget *makeList(const QStringList &longNames);
    void buildCard(const QStringList &longNames);
    QList<int> tickedTags() const;

    QList<QCheckBox *> m_checks;
    QPushButton *m_showButton = nullptr;
};

} // namespace moravel
