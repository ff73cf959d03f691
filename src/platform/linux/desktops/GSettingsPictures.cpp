// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/GSettingsPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QFileInfo>

namespace moravel {

namespace {

constexpr const char *OptionsKey = "picture-options";
constexpr const char *SlideshowKey = "slideshow-enabled";

tl::unexpected<DesktopError> failure(const char *sentence)
{
    return tl::make_unexpected(DesktopError{{}, QString::fromLatin1(sentence)});
}

QList<QSize> sizesOf(const QList<DesktopScreen> &screens)
{
    QList<QSize> sizes;
    for (const DesktopScreen &screen : screens)
        sizes.append(screen.pixels);
    return sizes;
}

} // namespace

GSettingsPictures::GSettingsPictures(const GSettingsDesktop &desktop, const QString &copyFolder)
    : m_desktop(desktop)
    , m_keys(QString::fromLatin1(desktop.schema))
    , m_interface(QStringLiteral("org.gnome.desktop.interface"))
    , m_slideshow(QString::fromLatin1(desktop.slideshowSchema))
    , m_copies(desktop.keepsPictures ? std::make_unique<ScaledCopies>(
                   copyFolder, desktop.plainNamesOnly ? CopyKind::PlainNames : CopyKind::Scaled)
                                     : nullptr)
    , m_screens([this] { onScreens(); })
{
    m_keys.onChanged = m_interface.onChanged = m_slideshow.onChanged = [this] { refresh(); };
    refresh();
    restoreCopy();
}

bool GSettingsPictures::isUsable() const
{
    return m_keys.has(m_desktop.pictureKey);
}

QString GSettingsPictures::desktopImageUrl(const QString &) const
{
    GSettingsKeys::deliverChanges();
    return m_url;
}

void GSettingsPictures::setDesktopImageUrl(const QString &url, const QString &,
                                           DesktopScaling scaling, Done done)
{
    const QString path = pathOfUrl(url);
    if (!QFileInfo(path).isFile()) {
        later([done] { done(failure("The picture is not a file.")); });
        return;
    }
    const auto go = [this, scaling, done](const QString &file) { hand(file, scaling, done); };
    if (m_copies)
        m_copies->prepare(path, sizesOf(screens()), scaling, go, desktopImageUrl({}) == url);
    else
        later([go, path] { go(path); });
}

void GSettingsPictures::hand(const QString &file, DesktopScaling scaling, const Done &done)
{
    if (isSlideshow(read()))
        qCInfo(desktopsLog, "%s rotated pictures by itself; it no longer does", m_desktop.name);
    endSlideshow();
    if (!write(file, scaling)) {
        done(failure("The desktop's setting is locked or missing."));
        return;
    }
    m_confirmation.start([this, file, done] {
        GSettingsKeys::waitForWrites();
        later([this, file, done] {
            refresh();
            if (m_file == file)
                done({});
            else
                done(failure("The desktop did not keep the picture that it was given."));
        });
    });
}

bool GSettingsPictures::write(const QString &file, DesktopScaling scaling)
{
    const QString value = pictureValue(file, m_desktop.plainPath);
    m_keys.delay(); // one change: the desktop paints once
    bool taken = m_keys.setText(m_desktop.pictureKey, value);
    if (m_desktop.darkKey && m_keys.has(m_desktop.darkKey))
        taken = m_keys.setText(m_desktop.darkKey, value) && taken;
    taken = m_keys.setText(OptionsKey, pictureOptions(scaling)) && taken;
    if (m_desktop.drawKey && m_keys.has(m_desktop.drawKey))
        taken = m_keys.setFlag(m_desktop.drawKey, true) && taken;
    m_keys.apply();
    return taken;
}

void GSettingsPictures::endSlideshow()
{
    if (m_slideshow.flag(SlideshowKey).value_or(false))
        m_slideshow.setFlag(SlideshowKey, false);
}

GSettingsReading GSettingsPictures::read() const
{
    GSettingsReading reading;
    reading.picture = m_keys.text(m_desktop.pictureKey);
    reading.options = m_keys.text(OptionsKey);
    if (m_desktop.darkKey) {
        reading.darkPicture = m_keys.text(m_desktop.darkKey);
        reading.colorScheme = m_interface.text("color-scheme");
    }
    if (m_desktop.drawKey)
        reading.draws = m_keys.flag(m_desktop.drawKey);
    reading.slideshowEnabled = m_slideshow.flag(SlideshowKey);
    reading.slideshowSource = m_slideshow.text("image-source");
    return reading;
}

void GSettingsPictures::refresh()
{
    m_file = shownPath(read());
    m_url = fileUrl(m_copies ? m_copies->original(m_file) : m_file);
}

void GSettingsPictures::onScreens()
{
    restoreCopy();
    if (onScreensChanged)
        onScreensChanged();
}

void GSettingsPictures::restoreCopy()
{
    if (!m_copies)
        return;
    m_copies->restore(m_file, [this, lost = m_file](const QString &file) {
        if (m_file != lost)
            return; // replaced meanwhile
        const QString value = pictureValue(file, m_desktop.plainPath);
        m_keys.setText(m_desktop.pictureKey, value);
        if (m_desktop.darkKey)
            m_keys.setText(m_desktop.darkKey, value);
    });
}

void GSettingsPictures::later(std::function<void()> fn)
{
    QMetaObject::invokeMethod(&m_context, std::move(fn), Qt::QueuedConnection);
}

} // namespace moravel
