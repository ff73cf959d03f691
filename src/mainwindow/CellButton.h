// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace moravel {

/// A small icon button that lies over a picture: white lines on the dark plate of its parent.
class CellButton : public QAbstractButton
{
    Q_OBJECT

public:
    CellButton(QString iconName, const QString &accessibleName, QWidget *parent = nullptr);

    QSize sizeHint() const override { return {28, 26}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_iconName;
};

/// The dark plate that holds the buttons of a cell.
class CellButtonBar : public QWidget
{
    Q_OBJECT

public:
    explicit CellButtonBar(QWidget *parent = nullptr);

    CellButton *addButton(const QString &objectName, const QString &iconName,
                          const QString &accessibleName);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace moravel
