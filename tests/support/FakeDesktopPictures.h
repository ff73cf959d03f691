// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QHash>
#include <QSet>

#include <deque>

namespace moravel::testing {

/// A desktop with two screens. What is set shows at once, and is answered at deliver().
class FakeDesktopPictures : public DesktopPictures
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
        m_answers.push_back([done, fails, screen] {
            if (fails)
                done(tl::make_unexpected(DesktopError{screen, QStringLiteral("refused")}));
            else
                done({});
        });
    }

    /// Answers what was set. Returns whether there was anything.
    bool deliver()
    {
        const bool any = !m_answers.empty();
        while (!m_answers.empty()) {
            const auto answer = std::move(m_answers.front());
            m_answers.pop_front();
            answer();
        }
        return any;
    }

    DesktopAbilities can{true, true};
    QList<DesktopScreen> all{{QStringLiteral("A"), {1440, 900}, true},
                             {QStringLiteral("B"), {800, 600}, false}};
    QHash<QString, QString> shown; ///< URL text by screen.
    QSet<QString> refusing; ///< Screens that fail.
    bool deaf = false; ///< Agrees and does nothing.
    QList<Set> sets;

private:
    std::deque<std::function<void()>> m_answers;
};

} // namespace moravel::testing
