// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/ScaledCopies.h"

#include "platform/linux/desktops/CopyMaker.h"
#include "platform/linux/desktops/DesktopLog.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>

namespace moravel {

namespace {

constexpr int MostCopies = 2; // the current one and the one before
constexpr qint64 LongestList = 64 * 1024;

QString listFile(const QString &folder)
{
    return folder + QLatin1String("/copies.json");
}

QJsonArray toJson(const QList<QSize> &screens)
{
    QJsonArray array;
    for (const QSize &size : screens)
        array.append(QJsonArray{size.width(), size.height()});
    return array;
}

QList<QSize> toScreens(const QJsonArray &array)
{
    QList<QSize> screens;
    for (const QJsonValue &value : array)
        screens.append({value[0].toInt(), value[1].toInt()});
    return screens;
}

} // namespace

ScaledCopies::ScaledCopies(const QString &folder, CopyKind kind)
    : m_folder(QDir::cleanPath(folder)), m_kind(kind)
{
    m_pool.setMaxThreadCount(1);
    load();
}

ScaledCopies::~ScaledCopies()
{
    m_stop = true;
    m_pool.clear();
    m_pool.waitForDone();
}

void ScaledCopies::prepare(const QString &picture, const QList<QSize> &screens,
                           DesktopScaling scaling, std::function<void(QString)> done, bool isShown)
{
    static const QRegularExpression special(QStringLiteral("[%#?]"));
    const CopyOrder order{picture,
                          screens,
                          scaling,
                          m_folder,
                          versionFor(picture),
                          m_kind == CopyKind::PlainNames && (isShown || picture.contains(special)),
                          m_kind == CopyKind::Cut};
    m_pool.start([this, order, done = std::move(done)] {
        const QString name = makeCopy(order, m_stop);
        const auto deliver = [this, order, name, done] {
            if (!name.isEmpty())
                use({name, order.picture, order.screens, order.scaling, order.version});
            done(name.isEmpty() ? order.picture : m_folder + u'/' + name);
        };
        QMetaObject::invokeMethod(&m_mainThread, deliver, Qt::QueuedConnection);
    });
}

const ScaledCopies::Entry *ScaledCopies::find(const QString &path) const
{
    for (const Entry &entry : m_entries) {
        if (path == m_folder + u'/' + entry.name)
            return &entry;
    }
    return nullptr;
}

bool ScaledCopies::isLost(const Entry &entry) const
{
    return !QFileInfo::exists(m_folder + u'/' + entry.name);
}

int ScaledCopies::versionFor(const QString &picture) const
{
    for (const Entry &entry : m_entries) {
        if (entry.original == picture)
            return isLost(entry) ? entry.version + 1 : entry.version;
    }
    return 0;
}

QString ScaledCopies::original(const QString &path) const
{
    const Entry *entry = find(path);
    return entry ? entry->original : path;
}

void ScaledCopies::restore(const QString &path, std::function<void(QString)> done)
{
    if (const Entry *entry = find(path); entry && isLost(*entry))
        prepare(entry->original, entry->screens, entry->scaling, std::move(done));
}

void ScaledCopies::use(const Entry &entry)
{
    const auto sameName = [&](const Entry &other) { return other.name == entry.name; };
    m_entries.removeIf(sameName);
    m_entries.prepend(entry);
    while (m_entries.size() > MostCopies)
        m_entries.removeLast();
    save();
    removeOthers();
}

void ScaledCopies::load()
{
    QFile file(listFile(m_folder));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray array = QJsonDocument::fromJson(file.read(LongestList)).array();
    for (const QJsonValue &value : array) {
        const Entry entry{value[u"copy"].toString(), value[u"of"].toString(),
                          toScreens(value[u"screens"].toArray()),
                          DesktopScaling(qBound(0, value[u"scaling"].toInt(), 2)),
                          qBound(0, value[u"version"].toInt(), 1'000'000)};
        if (isCopyName(entry.name) && m_entries.size() < MostCopies)
            m_entries.append(entry);
    }
}

void ScaledCopies::save() const
{
    QJsonArray array;
    for (const Entry &entry : m_entries) {
        array.append(QJsonObject{{QStringLiteral("copy"), entry.name},
                                 {QStringLiteral("of"), entry.original},
                                 {QStringLiteral("screens"), toJson(entry.screens)},
                                 {QStringLiteral("scaling"), int(entry.scaling)},
                                 {QStringLiteral("version"), entry.version}});
    }
    QSaveFile file(listFile(m_folder));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(array).toJson()) < 0
        || !file.commit())
        qCWarning(desktopsLog, "cannot write %s", qUtf8Printable(file.fileName()));
}

void ScaledCopies::removeOthers() const
{
    const QDir folder(m_folder);
    for (const QString &name : folder.entryList(QDir::Files)) {
        const auto isIt = [&](const Entry &entry) { return entry.name == name; };
        if (isCopyName(name) && std::none_of(m_entries.begin(), m_entries.end(), isIt))
            QFile::remove(folder.filePath(name));
    }
}

} // namespace moravel
