// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace moravel {

/// The keys of one GSettings schema. A missing schema or key reads as nothing and takes no value, where
/// GLib itself would end the process. Main thread only; changes arrive through GLib's main context,
/// which Qt's event dispatcher runs.
class GSettingsKeys
{
public:
    /// Opens the schema; it stays empty when it is not installed.
    explicit GSettingsKeys(const QString &schema);
    ~GSettingsKeys();

    bool isOpen() const;
    bool has(const char *key) const;

    /// The value of a key of type string, or of an enumeration by its nick.
    std::optional<QString> text(const char *key) const;
    std::optional<bool> flag(const char *key) const;

    /// Writes a key; false when there is none, it is locked, or does not take this value.
    bool setText(const char *key, const QString &value);
    bool setFlag(const char *key, bool value);

    /// Holds back what is written from now on until apply(), then writes it as one change.
    void delay();
    void apply();

    /// Returns when the settings' service has taken or refused all that was written. For worker threads.
    static void waitForWrites();

    /// Called after any key of the schema has changed, also from outside.
    std::function<void()> onChanged;

    /// Delivers waiting changes where Qt was started without GLib's main loop (QT_NO_GLIB); else
    /// does nothing.
    static void deliverChanges();

private:
    struct Glib;
    std::unique_ptr<Glib> m_glib;
};

} // namespace moravel
