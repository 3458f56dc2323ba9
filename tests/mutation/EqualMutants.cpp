#include "tests/mutation/EqualMutants.h"

#include <algorithm>

bool EqualMutants::Entry::fits(const Mutation &mutation) const
{
    return file == mutation.file && line == mutation.before && mutant == mutation.after;
}

bool EqualMutants::Entry::isComplete() const
{
    return !file.isEmpty() && !line.isEmpty() && !mutant.isNull() && !reason.isEmpty();
}

QString EqualMutants::Entry::toString() const
{
    return QStringLiteral("%1: %2 -> %3").arg(file, line, mutant);
}

QString *EqualMutants::field(Entry &entry, const QString &key)
{
    if (key == QLatin1String("file"))
        return &entry.file;
    if (key == QLatin1String("line"))
        return &entry.line;
    if (key == QLatin1String("mutant"))
        return &entry.mutant;
    return key == QLatin1String("reason") ? &entry.reason : nullptr;
}

EqualMutants EqualMutants::read(const QString &text, QString *problem)
{
    EqualMutants list;
    Entry entry;
    QString *last = nullptr;
    const QStringList lines = (text + QStringLiteral("\n\n")).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        const QString key = line.section(QStringLiteral(": "), 0, 0);
        if (line.startsWith(QLatin1Char('#')))
            continue;
        if (line.trimmed().isEmpty()) {
            if (last && !entry.isComplete())
                *problem = QStringLiteral("line %1: an entry ends without all keys").arg(i + 1);
            else if (last)
                list.m_entries.append(entry);
            entry = {};
            last = nullptr;
        } else if (line.startsWith(QLatin1Char(' ')) && last) {
            *last += QLatin1Char(' ') + line.trimmed();
        } else if (QString *value = field(entry, key)) {
            *value = line.mid(key.size() + 1).simplified();
            last = value;
        } else {
            *problem = QStringLiteral("line %1: neither a key nor its value").arg(i + 1);
            return list;
        }
    }
    return list;
}

QString EqualMutants::reason(const Mutation &mutation) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry &entry) { return entry.fits(mutation); });
    return found == m_entries.end() ? QString() : found->reason;
}

QStringList EqualMutants::unmatched(const QStringList &files,
                                    const QVector<Mutation> &mutations) const
{
    QStringList entries;
    for (const Entry &entry : m_entries) {
        const auto fits = [&](const Mutation &mutation) { return entry.fits(mutation); };
        if (files.contains(entry.file) && std::none_of(mutations.begin(), mutations.end(), fits))
            entries.append(entry.toString());
    }
    return entries;
}

QStringList EqualMutants::withoutFile(const QStringList &files) const
{
    QStringList entries;
    for (const Entry &entry : m_entries) {
        if (!files.contains(entry.file))
            entries.append(entry.toString());
    }
    return entries;
}
