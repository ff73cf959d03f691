// SPDX-License-Identifier: MIT
#pragma once

#include "PrivateBus.h"

#include <QDBusArgument>
#include <QDBusVirtualObject>

namespace moravel::testing {

/// A service that answers the calls of all its objects by a function.
class FakeService : public QDBusVirtualObject
{
public:
    /// Gives what a call returns; a text that begins with "!" is an error.
    using Answer = std::function<QVariant(const QDBusMessage &call)>;

    FakeService(const QDBusConnection &connection, const char *name, Answer answer)
        : bus(connection), m_name(QString::fromLatin1(name)), m_answer(std::move(answer))
    {
        bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
        EXPECT_TRUE(bus.registerService(m_name));
    }

    ~FakeService() override
    {
        bus.unregisterService(m_name);
        bus.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
    }

    /// Sends a signal of "path interface".
    void tell(const QString &place, const char *signal, const QVariantList &arguments)
    {
        auto message = QDBusMessage::createSignal(place.section(u' ', 0, 0), place.section(u' ', 1),
                                                  QLatin1String(signal));
        message.setArguments(arguments);
        bus.send(message);
    }

    bool handleMessage(const QDBusMessage &call, const QDBusConnection &connection) override
    {
        const QVariant answer = m_answer(call);
        const QString text = answer.toString();
        if (text.startsWith(u'!'))
            return connection.send(call.createErrorReply(QDBusError::Failed, text.mid(1)));
        return connection.send(
            call.createReply(answer.isValid() ? QVariantList{answer} : QVariantList()));
    }

    QString introspect(const QString &) const override { return {}; }

    QDBusConnection bus;

private:
    QString m_name;
    Answer m_answer;
};

} // namespace moravel::testing
