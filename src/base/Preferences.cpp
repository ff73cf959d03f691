// SPDX-License-Identifier: MIT
#include "base/Preferences.h"

#include <algorithm>
#include <limits>

namespace moravel {

namespace {

const QString SourcesKey = QStringLiteral("sources");
const QString ZoomKey = QStringLiteral("zoom");
const QString FrequencyKey = QStringLiteral("ChangeFrequency");
const QString SizeKey = QStringLiteral("DesktopSize");
const QString SpacesKey = QStringLiteral("SetAllSpaces");
const QString ScreensKey = QStringLiteral("SetAllScreens");
const QString TooltipsKey = QStringLiteral("HideTooltips");
const QString FacebookKey = QStringLiteral("Facebook");
const QString QuietKey = QStringLiteral("Quiet");
const QString DiskLimitKey = QStringLiteral("DiskLimit");
const QString SideBarKey = QStringLiteral("HideSideBar");
const QString OpenKey = QStringLiteral("OpenWindows");
const QString PlaceKey = QStringLiteral("Window-"); // and the window's name

constexpr int AutoSizing =
    1000; // a stored 0 cannot be told from an absent value and means this too

int readInt(const Defaults &defaults, const QString &key)
{
    constexpr qint64 Least = std::numeric_limits<int>::min();
    constexpr qint64 Most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(defaults.integer(key).value_or(0), Least, Most));
}

} // namespace

Preferences::Preferences(Defaults &defaults, QObject *parent)
    : QObject(parent), m_defaults(defaults)
{ }

void Preferences::saveSourcePrefs(const QStringList &selectedSources)
{
    m_defaults.setList(SourcesKey, selectedSources);
}

std::optional<QStringList> Preferences::readSourcePrefs() const
{
    return m_defaults.list(SourcesKey);
}

void Preferences::saveZoomPrefs(double zoom)
{
    m_defaults.setNumber(ZoomKey, static_cast<float>(zoom));
}

float Preferences::readZoomPrefs() const
{
    return m_defaults.number(ZoomKey).value_or(0.0F);
}

void Preferences::setChangeFrequency(int minutes)
{
    m_defaults.setInteger(FrequencyKey, minutes);
    m_rotateFrequency = minutes;
    Q_EMIT menuStateChanged();
    if (onFrequencyChanged)
        onFrequencyChanged();
}

void Preferences::readChangeFrequency()
{
    m_rotateFrequency = readInt(m_defaults, FrequencyKey);
    Q_EMIT menuStateChanged();
}

void Preferences::setDesktopSize(int sizingTag)
{
    m_defaults.setInteger(SizeKey, sizingTag);
    readSizeSetting();
}

void Preferences::readSizeSetting()
{
    const int stored = readInt(m_defaults, SizeKey);
    m_desktopSizeSetting = stored == 0 ? AutoSizing : stored;
    Q_EMIT menuStateChanged();
}

void Preferences::setDesktopOptions(int optionTag)
{
    if (optionTag == AllSpacesTag)
        m_doSetAllSpaces = !m_doSetAllSpaces;
    else if (optionTag == AllScreensTag)
        m_doSetAllScreens = !m_doSetAllScreens;
    m_defaults.setBoolean(SpacesKey, m_doSetAllSpaces);
    m_defaults.setBoolean(ScreensKey, m_doSetAllScreens);
    Q_EMIT menuStateChanged();
}

void Preferences::readDesktopOptions()
{
    m_doSetAllScreens = m_defaults.boolean(ScreensKey).value_or(false);
    m_doSetAllSpaces = m_defaults.boolean(SpacesKey).value_or(false);
    Q_EMIT menuStateChanged();
}

bool Preferences::readHideTooltips() const
{
    return m_defaults.boolean(TooltipsKey).value_or(false);
}

void Preferences::saveHideTooltips(bool hide)
{
    m_defaults.setBoolean(TooltipsKey, hide);
}

bool Preferences::readFacebook() const
{
    return m_defaults.boolean(FacebookKey).value_or(false);
}

void Preferences::saveFacebook(bool told)
{
    m_defaults.setBoolean(FacebookKey, told);
}

bool Preferences::readQuiet() const
{
    return m_defaults.boolean(QuietKey).value_or(true);
}

void Preferences::saveQuiet(bool quiet)
{
    m_defaults.setBoolean(QuietKey, quiet);
}

int Preferences::readDiskLimit() const
{
    return std::max(0, readInt(m_defaults, DiskLimitKey));
}

void Preferences::saveDiskLimit(int gigabytes)
{
    m_defaults.setInteger(DiskLimitKey, gigabytes);
}

bool Preferences::readHideSideBar() const
{
    return m_defaults.boolean(SideBarKey).value_or(false);
}

void Preferences::saveHideSideBar(bool hide)
{
    m_defaults.setBoolean(SideBarKey, hide);
}

QByteArray Preferences::readWindowPlace(const QString &window) const
{
    const QStringList stored = m_defaults.list(PlaceKey + window).value_or(QStringList());
    return QByteArray::fromBase64(stored.value(0).toLatin1());
}

void Preferences::saveWindowPlace(const QString &window, const QByteArray &place)
{
    m_defaults.setList(PlaceKey + window, {QString::fromLatin1(place.toBase64())});
}

QStringList Preferences::readOpenWindows() const
{
    return m_defaults.list(OpenKey).value_or(QStringList());
}

void Preferences::saveOpenWindows(const QStringList &windows)
{
    m_defaults.setList(OpenKey, windows);
}

} // namespace moravel
