// SPDX-License-Identifier: MIT
// Fakes for the small seams, held in memory.
#pragma once

#include "platform/Alerts.h"
#include "platform/Clipboard.h"
#include "platform/Defaults.h"
#include "platform/Random.h"
#include "platform/UrlOpener.h"

#include <QHash>
#include <QList>
#include <QVariant>

namespace moravel::testing {

class FakeAlerts : public Alerts
{
public:
    struct Shown
    {
        QString title;
        QString text;
    };

    void alert(const QString &title, const QString &text) override { shown.append({title, text}); }

    QList<Shown> shown;
};

class FakeDefaults : public Defaults
{
public:
    std::optional<QStringList> list(const QString &key) const override
    {
        return read<QStringList>(key);
    }

    std::optional<qint64> integer(const QString &key) const override { return read<qint64>(key); }

    std::optional<float> number(const QString &key) const override { return read<float>(key); }

    std::optional<bool> boolean(const QString &key) const override { return read<bool>(key); }

    void setList(const QString &key, const QStringList &value) override { values[key] = value; }

    void setInteger(const QString &key, qint64 value) override { values[key] = value; }

    void setNumber(const QString &key, float value) override { values[key] = value; }

    void setBoolean(const QString &key, bool value) override { values[key] = value; }

    QHash<QString, QVariant> values;

private:
    template <typename T>
    std::optional<T> read(const QString &key) const
    {
        const auto it = values.find(key);
        if (it == values.end() || !it->canConvert<T>())
            return std::nullopt;
        return it->value<T>();
    }
};

class FakeRandom : public Random
{
public:
    std::uint32_t next() override { return numbers.isEmpty() ? 0 : numbers.takeFirst(); }

    QList<std::uint32_t> numbers;
};

class FakeUrlOpener : public UrlOpener
{
public:
    void open(const QString &url) override { opened.append(url); }

    QStringList opened;
};

class FakeClipboard : public Clipboard
{
public:
    void setText(const QString &newText) override { text = newText; }

    QString text;
};

} // namespace moravel::testing
