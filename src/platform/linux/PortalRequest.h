// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>
#include <tl/expected.hpp>

namespace moravel {

/// Why the portal did not do what it was asked for.
struct PortalError
{
    enum Kind {
        Cancelled = 1, ///< By the user; numbered as the portal does.
        Ended, ///< In some other way.
        Failed, ///< It could not even be asked.
        Superseded ///< Another question came first.
    };

    Kind kind;
    QString text; ///< Of a question that failed.
};

/// Asks the desktop's portal, one question at a time. The desktop may ask the user in turn, who may leave
/// that open for ever: the next question closes it.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    using Answer = tl::expected<QVariantMap, PortalError>;

    explicit PortalRequest(const QDBusConnection &sessionBus);

    static QString service();

    /// Calls a method of the portal, which takes @p options last. @p done gets its results, or the error,
    /// later, once; not at all when this object is gone.
    void ask(const QString &interface, const QString &method, const QVariantList &arguments,
             QVariantMap options, std::function<void(const Answer &)> done);

private Q_SLOTS:
    void response(uint code, const QVariantMap &results, const QDBusMessage &message);

private:
    struct Question
    {
        QString object; ///< Through which the portal answers.
        std::function<void(const Answer &)> done;
    };

    void close();
    void end(const Answer &answer);

    QDBusConnection m_bus;
    std::optional<Question> m_question;
};

} // namespace moravel
