// SPDX-License-Identifier: MIT
#include "store/Folders.h"

#include "platform/Alerts.h"
#include "platform/Texts.h"
#include "store/Logging.h"

namespace moravel {

namespace {

QString dataFileName()
{
    return QStringLiteral("Moravel2.txt");
}

QString below(const QString &base, const QString &path)
{
    return base.isEmpty() ? QString() : base + path;
}

} // namespace

Folders::Folders(Files &files, Alerts &alerts) : m_files(files), m_alerts(alerts)
{ }

QString Folders::picturePath(const QString &name) const
{
    return below(m_files.standardFolders().pictures, QLatin1String("/Moravel/") + name);
}

QString Folders::supportPath(const QString &name) const
{
    return below(m_files.standardFolders().applicationSupport, QLatin1String("/Moravel/") + name);
}

FileResult<void> Folders::provide(const QString &folder)
{
    if (m_files.isFolder(folder))
        return {};
    return m_files.makeFolder(folder);
}

QString Folders::provideOrAlert(const QString &folder, const QString &alertTitle)
{
    const auto provided = provide(folder);
    if (provided)
        return folder;
    m_alerts.alert(alertTitle, provided.error().description);
    return {};
}

QString Folders::moravelFolder()
{
    return provideOrAlert(picturePath({}), Texts::tr("Error creating Moravel folder."));
}

QString Folders::thumbsFolder()
{
    return provideOrAlert(picturePath(QStringLiteral("thumbs/")),
                          Texts::tr("Error creating Moravel thumbs folder."));
}

QString Folders::moravelDataFile()
{
    const QString support =
        provideOrAlert(supportPath(), Texts::tr("Error creating Moravel support folder."));
    if (support.isEmpty())
        return {};
    QString newPath = support + dataFileName();
    QString oldPath = below(moravelFolder(), dataFileName());
    if (oldPath.isEmpty() || m_files.size(oldPath) < 0 || m_files.exists(newPath))
        return newPath;
    const auto moved = m_files.move(oldPath, newPath);
    if (moved)
        return newPath;
    m_alerts.alert(Texts::tr("Error moving Moravel data file to support folder."),
                   moved.error().description);
    return oldPath;
}

QString Folders::supportFile(const QString &name)
{
    const auto provided = provide(supportPath());
    if (provided)
        return supportPath(name);
    qCInfo(lcStore) << "no folder for" << name << provided.error().path
                    << provided.error().description;
    return {};
}

QString Folders::moravelNewsFile()
{
    return supportFile(QStringLiteral("Moravel-News.txt"));
}

QString Folders::sourcesFile()
{
    return supportFile(QStringLiteral("Moravel-Sources.txt"));
}

QString Folders::desktopsFile()
{
    return supportFile(QStringLiteral("Moravel-Desktops.txt"));
}

QString Folders::letGoFile()
{
    return supportFile(QStringLiteral("Moravel-LetGo.txt"));
}

void Folders::removeLeftovers()
{
    for (const QString &folder :
         {picturePath({}), picturePath(QStringLiteral("thumbs/")), supportPath()}) {
        if (m_files.isFolder(folder))
            m_files.removeParts(folder);
    }
}

} // namespace moravel
