// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace moravel {

/// Shows the text of a picture. The text comes from outside: nothing that it names is ever loaded, and a
/// click on a link is only told.
class PicDetails : public QTextBrowser
{
    Q_OBJECT

public:
    explicit PicDetails(QWidget *parent = nullptr);

    /// Shows markup that was made safe.
    void showHtml(const QString &safeHtml);
    /// Shows a text as it stands.
    void showText(const QString &text);

    /// Takes the colours that the desktop has now; for the window, which hears of a change.
    void followPalette();

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override;

private:
    QString m_html; ///< Shown anew when the colours change.
};

} // namespace moravel
