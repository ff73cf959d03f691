// SPDX-License-Identifier: MIT
#pragma once

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace moravel::testing {

/// Takes the place of the programs that open addresses of some schemes.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    explicit UrlRecorder(const QStringList &schemes) : m_schemes(schemes)
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    ~UrlRecorder() override
    {
        for (const QString &scheme : std::as_const(m_schemes))
            QDesktopServices::unsetUrlHandler(scheme);
    }

    Q_DISABLE_COPY_MOVE(UrlRecorder)

    QStringList opened; ///< Encoded.

public Q_SLOTS:

    void open(const QUrl &url) { opened.append(QString::fromLatin1(url.toEncoded())); }

private:
    QStringList m_schemes;
};

} // namespace moravel::testing
