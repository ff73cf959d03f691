// SPDX-License-Identifier: MIT
#include "platform/linux/session/GioPrograms.h"

#include <gio/gio.h>
#include <memory>
#include <utility>

namespace moravel {

namespace {

struct Unref
{
    void operator()(GAppInfo *info) const { g_object_unref(info); }

    void operator()(char *text) const { g_free(text); }
};

QString iconOfDefaultProgram(const QByteArray &scheme)
{
    const std::unique_ptr<GAppInfo, Unref> program(
        g_app_info_get_default_for_uri_scheme(scheme.constData()));
    GIcon *icon = program ? g_app_info_get_icon(program.get()) : nullptr; // the program's own
    if (!icon)
        return {};
    if (G_IS_FILE_ICON(icon)) {
        const std::unique_ptr<char, Unref> path(
            g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
        return QString::fromLocal8Bit(path.get());
    }
    const char *const *names =
        G_IS_THEMED_ICON(icon) ? g_themed_icon_get_names(G_THEMED_ICON(icon)) : nullptr;
    return names ? QString::fromUtf8(names[0]) : QString();
}

} // namespace

GioPrograms::GioPrograms()
{
    m_pool.setMaxThreadCount(1);
    for (const char *scheme : {"http", "mailto"})
        lookUp(QString::fromLatin1(scheme));
}

GioPrograms::~GioPrograms()
{
    m_pool.clear();
    m_pool.waitForDone();
}

QString GioPrograms::iconForScheme(const QString &scheme)
{
    lookUp(scheme);
    return m_icons.value(scheme).icon;
}

void GioPrograms::lookUp(const QString &scheme)
{
    if (std::exchange(m_icons[scheme].isLookedUp, true))
        return;
    m_pool.start([this, scheme] {
        const QString icon = iconOfDefaultProgram(scheme.toUtf8());
        QMetaObject::invokeMethod(
            this, [this, scheme, icon] { found(scheme, icon); }, Qt::QueuedConnection);
    });
}

void GioPrograms::found(const QString &scheme, const QString &icon)
{
    m_icons[scheme] = {icon, false};
}

} // namespace moravel
