#include "refhost/validator/trials/NamesInFile.h"

#include <QFile>
#include <QSet>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int mostNames = 20000;
constexpr int longestName = 60;

bool isName(const QString &text)
{
    return !text.isEmpty() && text.size() <= longestName &&
           std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.isPrint(); });
}

/// Adds the texts of 8-bit characters, which end with a NUL.
void addNarrowNames(const QByteArray &bytes, QSet<QString> &names)
{
    const QList<QByteArray> pieces = bytes.split('\0');
    for (const QByteArray &piece : pieces) {
        const QString name = QString::fromUtf8(piece.left(longestName * 3 + 1));
        if (isName(name))
            names.insert(name);
    }
}

/// Adds the texts of 16-bit characters, which begin at an even place and end with a NUL.
void addWideNames(const QByteArray &bytes, QSet<QString> &names)
{
    QString text;
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        const QChar unit(qFromLittleEndian<ushort>(bytes.constData() + i));
        if (!unit.isNull()) {
            text.append(unit);
            continue;
        }
        if (isName(text))
            names.insert(text);
        text.clear();
    }
}

} // namespace

QStringList namesInFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    QSet<QString> names;
    addWideNames(bytes, names);
    addNarrowNames(bytes, names);
    QStringList sorted = names.values();
    sorted.sort();
    return sorted.mid(0, mostNames);
}
