// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/CellState.h"

#include <QWidget>

namespace moravel {

/// Says over the picture of a cell why it is not that of the day, by a sign and words: on a dark strip
/// along the upper edge of a picture of another day, or in the middle where there is no picture.
class CellNotice : public QWidget
{
    Q_OBJECT

public:
    explicit CellNotice(QWidget *parent = nullptr);

    /// Says @p text; with an empty text there is nothing to be seen.
    void tell(CellState state, const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintStrip(QPainter &painter);
    void paintMiddle(QPainter &painter);

    CellState m_state = CellState::Shown;
    QString m_text;
};

} // namespace moravel
