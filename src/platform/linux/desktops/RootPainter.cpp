// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/RootPainter.h"

#include "platform/linux/desktops/DesktopDecoder.h"
#include "platform/linux/desktops/Xcb.h"

#include <bit>
#include <tuple>

namespace moravel {

namespace {

constexpr char TwinProperty[] = "ESETROOT_PMAP_ID"; ///< Set beside the other one by its setters.

/// A picture that is ready for its place.
struct Painted
{
    QImage image;
    QRect monitor;
};

/// The layout of the root's pixels in memory; invalid for a display that is none of the usual ones.
QImage::Format formatOf(const xcb_connection_t *connection, const xcb_screen_t &screen)
{
    const bool sameOrder =
        (xcb_get_setup(const_cast<xcb_connection_t *>(connection))->image_byte_order
         == XCB_IMAGE_ORDER_LSB_FIRST)
        == (std::endian::native == std::endian::little);
    if (!sameOrder)
        return QImage::Format_Invalid;
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem;
         xcb_depth_next(&depth)) {
        for (auto it = xcb_depth_visuals_iterator(depth.data); it.rem; xcb_visualtype_next(&it)) {
            if (it.data->visual_id != screen.root_visual)
                continue;
            switch (it.data->red_mask) {
            case 0xff0000:
                return QImage::Format_RGB32;
            case 0x3ff00000:
                return QImage::Format_RGB30;
            case 0x3ff:
                return QImage::Format_BGR30;
            case 0xf800:
                return QImage::Format_RGB16;
            default:
                return QImage::Format_Invalid;
            }
        }
    }
    return QImage::Format_Invalid;
}

class Painter
{
public:
    explicit Painter(x11::Display display)
        : m_display(std::move(display))
        , m_c(m_display.connection.get())
        , m_screen(*m_display.screen)
        , m_rootPixmap(x11::atom(m_c, RootPixmapProperty))
        , m_twin(x11::atom(m_c, TwinProperty))
        , m_own(x11::atom(m_c, OwnPixmapProperty))
        , m_pixmapType(x11::atom(m_c, "PIXMAP"))
    { }

    /// Makes a black pixmap of the root's size that outlives the connection.
    bool begin()
    {
        const x11::Reply<xcb_get_geometry_reply_t> root(
            xcb_get_geometry_reply(m_c, xcb_get_geometry(m_c, m_screen.root), nullptr));
        if (!root)
            return false;
        m_size = QSize(root->width, root->height);
        xcb_set_close_down_mode(m_c, XCB_CLOSE_DOWN_RETAIN_PERMANENT);
        m_pixmap = xcb_generate_id(m_c);
        xcb_create_pixmap(m_c, m_screen.root_depth, m_pixmap, m_screen.root, root->width,
                          root->height);
        m_gc = xcb_generate_id(m_c);
        const quint32 values[] = {m_screen.black_pixel, 0};
        xcb_create_gc(m_c, m_gc, m_pixmap, XCB_GC_FOREGROUND | XCB_GC_GRAPHICS_EXPOSURES, values);
        clear(QRect(QPoint(0, 0), m_size));
        return true;
    }

    /// Copies what is shown now, whoever has set it.
    void keepOld()
    {
        const std::optional<quint32> old = x11::windowValue(m_c, m_screen.root, m_rootPixmap);
        if (!old || !*old)
            return;
        const x11::Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_c, xcb_get_geometry(m_c, *old), nullptr));
        if (geometry && geometry->depth == m_screen.root_depth)
            xcb_copy_area(m_c, *old, m_pixmap, m_gc, 0, 0, 0, 0, geometry->width, geometry->height);
    }

    void put(const Painted &painted)
    {
        clear(painted.monitor);
        const QImage &image = painted.image;
        const QRect place = QRect(QPoint(0, 0), painted.monitor.size());
        const QPoint corner = painted.monitor.topLeft()
            + QPoint((place.width() - image.width()) / 2, (place.height() - image.height()) / 2);
        const qsizetype limit = qsizetype(xcb_get_maximum_request_length(m_c)) * 4 - 64;
        const int strip = static_cast<int>(std::max<qsizetype>(1, limit / image.bytesPerLine()));
        for (int y = 0; y < image.height(); y += strip) {
            const int rows = std::min(strip, image.height() - y);
            xcb_put_image(m_c, XCB_IMAGE_FORMAT_Z_PIXMAP, m_pixmap, m_gc,
                          static_cast<quint16>(image.width()), static_cast<quint16>(rows),
                          static_cast<qint16>(corner.x()), static_cast<qint16>(corner.y() + y), 0,
                          m_screen.root_depth, static_cast<quint32>(rows * image.bytesPerLine()),
                          image.constScanLine(y));
        }
    }

    /// Shows the pixmap, announces it, and frees the one before. Returns false when the server did not
    /// take it.
    bool show(PaintResult &result)
    {
        xcb_grab_server(m_c); // no other setter between the look at the old pixmap and its end
        const auto old = x11::windowValue(m_c, m_screen.root, m_rootPixmap);
        const auto twin = x11::windowValue(m_c, m_screen.root, m_twin);
        if (old && x11::windowValue(m_c, m_screen.root, m_own) == old)
            result.previous = *old;
        result.pixmap = m_pixmap;
        xcb_change_window_attributes(m_c, m_screen.root, XCB_CW_BACK_PIXMAP, &m_pixmap);
        xcb_clear_area(m_c, 0, m_screen.root, 0, 0, 0, 0);
        set(m_own, m_pixmap);
        set(m_twin, m_pixmap);
        set(m_rootPixmap, m_pixmap);
        // Only a setter that left its pixmap behind for good writes both properties; an id in one alone may
        // belong to a running desktop, which would be killed.
        if (old && twin && *old == *twin && *old > XCB_KILL_ALL_TEMPORARY)
            xcb_kill_client(m_c, *old);
        xcb_ungrab_server(m_c);
        return x11::windowValue(m_c, m_screen.root, m_rootPixmap) == m_pixmap;
    }

    /// Frees the pixmap again, when nothing is shown.
    void giveUp() { xcb_set_close_down_mode(m_c, XCB_CLOSE_DOWN_DESTROY_ALL); }

    const x11::Display &display() const { return m_display; }

    QImage::Format format() const { return formatOf(m_c, m_screen); }

private:
    void clear(const QRect &area)
    {
        const xcb_rectangle_t rectangle{
            static_cast<qint16>(area.x()), static_cast<qint16>(area.y()),
            static_cast<quint16>(area.width()), static_cast<quint16>(area.height())};
        xcb_poly_fill_rectangle(m_c, m_pixmap, m_gc, 1, &rectangle);
    }

    void set(xcb_atom_t property, quint32 value)
    {
        xcb_change_property(m_c, XCB_PROP_MODE_REPLACE, m_screen.root, property, m_pixmapType, 32,
                            1, &value);
    }

    x11::Display m_display;
    xcb_connection_t *m_c;
    xcb_screen_t &m_screen;
    xcb_atom_t m_rootPixmap, m_twin, m_own, m_pixmapType;
    xcb_pixmap_t m_pixmap = 0;
    xcb_gcontext_t m_gc = 0;
    QSize m_size;
};

/// Decodes each picture once for each size and sizing.
QMap<QString, Painted> decodeAll(const QMap<QString, PaintOrder> &orders, const Painter &painter,
                                 PaintResult &result, const std::atomic<bool> &stop)
{
    std::map<std::tuple<QString, int, int, DesktopScaling>, QImage> decoded;
    const std::map<QString, QRect> monitors = x11::monitors(painter.display());
    QMap<QString, Painted> ready;
    for (auto order = orders.begin(); order != orders.end(); ++order) {
        const auto monitor = monitors.find(order.key());
        if (monitor == monitors.end()) {
            result.failed[order.key()] = QStringLiteral("There is no such screen.");
            continue;
        }
        const QSize size = monitor->second.size();
        QImage &image = decoded[{order->path, size.width(), size.height(), order->scaling}];
        if (image.isNull())
            image = decodeForScreen(order->path, size, order->scaling, stop)
                        .convertToFormat(painter.format());
        if (image.isNull())
            result.failed[order.key()] = QStringLiteral("The picture cannot be read.");
        else
            ready[order.key()] = {image, monitor->second};
    }
    return ready;
}

} // namespace

tl::expected<PaintResult, QString> paintRoot(const QMap<QString, PaintOrder> &orders,
                                             const std::atomic<bool> &stop)
{
    std::optional<x11::Display> display = x11::openDisplay();
    if (!display)
        return tl::unexpected(QStringLiteral("The X display cannot be reached."));
    Painter painter(std::move(*display));
    if (painter.format() == QImage::Format_Invalid)
        return tl::unexpected(QStringLiteral("The colours of the X display are not supported."));
    PaintResult result;
    const QMap<QString, Painted> ready = decodeAll(orders, painter, result, stop);
    if (ready.isEmpty() || stop)
        return result;
    if (!painter.begin())
        return tl::unexpected(QStringLiteral("The X display does not answer."));
    painter.keepOld();
    for (const Painted &painted : ready)
        painter.put(painted);
    if (!painter.show(result)) {
        painter.giveUp();
        return tl::unexpected(QStringLiteral("The X display did not take the picture."));
    }
    return result;
}

} // namespace moravel
