#include "refhost/workbench/files/RecentFiles.h"

#include "refhost/workbench/settings/Settings.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace {

QString key()
{
    return QStringLiteral("recentFiles");
}

QStringList stored()
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(key()).toStringList();
}

} // namespace

QStringList RecentFiles::files() const
{
    QStringList files = stored();
    std::stable_partition(files.begin(), files.end(),
                          [](const QString &path) { return QFileInfo(path).isFile(); });
    return files;
}

void RecentFiles::add(const QString &path)
{
    QStringList files = stored();
    files.removeAll(path);
    files.prepend(path);
    QSettings(settingsFile(), QSettings::IniFormat)
        .setValue(key(), QStringList(files.mid(0, most)));
}

void RecentFiles::clear()
{
    QSettings(settingsFile(), QSettings::IniFormat).remove(key());
}
