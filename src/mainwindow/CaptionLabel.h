// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace moravel {

/// A label of at most a few lines of plain text, elided at its end, with the whole text as tool tip when
/// it does not fit. The text may come from outside: it is never taken for markup.
class CaptionLabel : public QWidget
{
    Q_OBJECT

public:
    /// A label of at least one line; with FillHeight it shows as many lines as its height allows.
    static constexpr int FillHeight = 0;
    explicit CaptionLabel(int maximumLines, QWidget *parent = nullptr);

    void setText(const QString &text);

    QString text() const { return m_text; }

    bool isElided() const;

    /// Centres the lines; without it they begin at the side where their text does.
    void setCentred(bool centred);

    /// Draws in the quieter colour of secondary text.
    void setSecondary(bool secondary);

    /// Sets a hint that stands in the label, in the colour of secondary text, while it is empty.
    void setPlaceholder(const QString &placeholder);

    QString placeholder() const { return m_placeholder; }

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The left mouse button was pressed, for the @p clickCount-th time in a row.
    void clicked(int clickCount);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Layout
    {
        QStringList lines;
        bool elided = false;
    };

    int linesThatFit() const;
    const Layout &layoutFor(int width, int most) const;

    int m_maximumLines;
    bool m_secondary = false;
    bool m_centred = false;
    QString m_placeholder;
    QString m_text;
    mutable int m_layoutWidth = -1;
    mutable int m_layoutLines = -1;
    mutable Layout m_layout;
};

/// Wraps a text from outside for use as a tool tip: shown literally, in lines of readable length.
QString plainToolTip(const QString &text);

} // namespace moravel
