// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/DesktopPictures.h"

#include <QHash>
#include <QSet>

namespace moravel::testing {

/// A desktop with two screens. What is set shows at once, and is answered at deliver().
class FakeDesktopPictures : public DesktopPictures, public Answers
{
public:
    struct Set
    {
        QString url;
        QString screen;
        DesktopScaling scaling;
        bool operator==(const Set &) const = default;
    };

    QString name() const override { return QStringLiteral("Fake"); }

    DesktopAbilities abilities() const override { return can; }

    QList<DesktopScreen> screens() const override { return all; }

    QString desktopImageUrl(const QString &screen) const override { return shown.value(screen); }

    void setDesktopImageUrl(const QString &url, const QString &screen, DesktopScaling scaling,
                            std::function<void(tl::expected<void, DesktopError>)> done) override
    {
        sets.append({url, screen, scaling});
        const bool fails = refusing.contains(screen);
        if (!fails && !deaf)
            shown[screen] = url;
        later([done, fails, screen] {
            if (fails)
                done(tl::make_unexpected(DesktopError{screen, QStringLiteral("refused")}));
            else
                done({});
        });
    }

    DesktopAbilities can{true, true};
    QList<DesktopScreen> all{{QStringLiteral("A"), {1440, 900}, true},
                             {QStringLiteral("B"), {800, 600}, false}};
    QHash<QString, QString> shown; ///< URL text by screen.
    QSet<QString> refusing; ///< Screens that fail.
    bool deaf = false; ///< Agrees and does nothing.
    QList<Set> sets;
};

} // namespace moravel::testing
