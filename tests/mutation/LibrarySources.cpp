#include "tests/mutation/LibrarySources.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

#include <algorithm>

QStringList librarySources(const QString &project)
{
    QStringList files;
    const QDir root(project);
    for (const char *folder : {"operations", "plugin"}) {
        QDirIterator iterator(root.filePath(QLatin1String(folder)),
                              {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext())
            files.append(root.relativeFilePath(iterator.next()));
    }
    files.sort();
    return files;
}

bool isMeant(const QString &file, const QStringList &patterns)
{
    const auto fits = [&](const QString &pattern) {
        QString form = QRegularExpression::escape(pattern);
        form.replace(QLatin1String("\\*"), QLatin1String(".*"));
        form.replace(QLatin1String("\\?"), QLatin1String("."));
        return QRegularExpression(QStringLiteral("(^|/)%1$").arg(form)).match(file).hasMatch();
    };
    return patterns.isEmpty() || std::any_of(patterns.begin(), patterns.end(), fits);
}
