// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/GridPanel.h"

#include <QStringList>

class QCheckBox;
class QGridLayout;
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
    void resizeEvent(QResizeEvent *event) override;

private:
    QCheckBox *createButtonWithTitle(const QString &longName, int index);
    QWidget *makeList(const QStringList &longNames);
    void arrange(int columns);
    void buildCard(const QStringList &longNames);
    QList<int> tickedTags() const;

    QList<QCheckBox *> m_checks;
    QWidget *m_list = nullptr;
    QGridLayout *m_checkCells = nullptr;
    int m_columns = 0;
    QPushButton *m_showButton = nullptr;
};

} // namespace moravel
