// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/GSettingsKeys.h"

#include <QAbstractEventDispatcher>

#include <gio/gio.h>

namespace moravel {

struct GSettingsKeys::Glib
{
    GSettingsSchema *schema = nullptr;
    GSettings *settings = nullptr;
    bool isType(const char *key, const GVariantType *type) const;
};

bool GSettingsKeys::Glib::isType(const char *key, const GVariantType *type) const
{
    if (!schema || !g_settings_schema_has_key(schema, key))
        return false;
    GSettingsSchemaKey *info = g_settings_schema_get_key(schema, key);
    const bool is = g_variant_type_equal(g_settings_schema_key_get_value_type(info), type);
    g_settings_schema_key_unref(info);
    return is;
}

GSettingsKeys::GSettingsKeys(const QString &schema) : m_glib(std::make_unique<Glib>())
{
    GSettingsSchemaSource *source = g_settings_schema_source_get_default();
    if (!source)
        return;
    m_glib->schema = g_settings_schema_source_lookup(source, qUtf8Printable(schema), true);
    // A schema without a path of its own cannot be opened by its name alone.
    if (!m_glib->schema || !g_settings_schema_get_path(m_glib->schema))
        return;
    m_glib->settings = g_settings_new_full(m_glib->schema, nullptr, nullptr);
    const auto changed = +[](GSettings *, const char *, gpointer self) {
        const auto &report = static_cast<GSettingsKeys *>(self)->onChanged;
        if (report)
            report();
    };
    g_signal_connect(m_glib->settings, "changed", G_CALLBACK(changed), this);
}

GSettingsKeys::~GSettingsKeys()
{
    if (m_glib->settings) {
        g_signal_handlers_disconnect_by_data(m_glib->settings, this);
        g_object_unref(m_glib->settings);
    }
    if (m_glib->schema)
        g_settings_schema_unref(m_glib->schema);
}

bool GSettingsKeys::isOpen() const
{
    return m_glib->settings;
}

bool GSettingsKeys::has(const char *key) const
{
    return m_glib->settings && g_settings_schema_has_key(m_glib->schema, key);
}

std::optional<QString> GSettingsKeys::text(const char *key) const
{
    if (!isOpen() || !m_glib->isType(key, G_VARIANT_TYPE_STRING))
        return std::nullopt;
    // Also reads enumerations: their values are stored as nicks.
    GVariant *value = g_settings_get_value(m_glib->settings, key);
    const QString text = QString::fromUtf8(g_variant_get_string(value, nullptr));
    g_variant_unref(value);
    return text;
}

std::optional<bool> GSettingsKeys::flag(const char *key) const
{
    if (!isOpen() || !m_glib->isType(key, G_VARIANT_TYPE_BOOLEAN))
        return std::nullopt;
    return g_settings_get_boolean(m_glib->settings, key);
}

bool GSettingsKeys::setText(const char *key, const QString &value)
{
    if (!isOpen() || !m_glib->isType(key, G_VARIANT_TYPE_STRING))
        return false;
    GSettingsSchemaKey *info = g_settings_schema_get_key(m_glib->schema, key);
    GVariant *variant = g_variant_ref_sink(g_variant_new_string(value.toUtf8().constData()));
    // g_settings_set_value() complains aloud about a value outside the key's range.
    const bool taken = g_settings_schema_key_range_check(info, variant)
        && g_settings_set_value(m_glib->settings, key, variant);
    g_variant_unref(variant);
    g_settings_schema_key_unref(info);
    return taken;
}

bool GSettingsKeys::setFlag(const char *key, bool value)
{
    return isOpen() && m_glib->isType(key, G_VARIANT_TYPE_BOOLEAN)
        && g_settings_set_boolean(m_glib->settings, key, value);
}

void GSettingsKeys::delay()
{
    if (isOpen())
        g_settings_delay(m_glib->settings);
}

void GSettingsKeys::apply()
{
    if (isOpen())
        g_settings_apply(m_glib->settings);
}

void GSettingsKeys::waitForWrites()
{
    g_settings_sync();
}

void GSettingsKeys::deliverChanges()
{
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    if (dispatcher && dispatcher->inherits("QEventDispatcherGlib"))
        return;
    while (g_main_context_iteration(nullptr, false)) { }
}

} // namespace moravel
