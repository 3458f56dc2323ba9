#include "tests/golden/GoldenFolder.h"

#include "tests/golden/GoldenValue.h"

#include "refhost/engine/FileBytes.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>

#include <algorithm>

namespace {

Problem unreadable(const QString &file, const QString &place, const QString &message)
{
    return {Problem::Reason::WrongKind, file, place, message};
}

/// The record called `name` as the JSON of its operation tells it, but for the bytes.
Result<GoldenRecord> readValues(const QString &file, const QString &name, const QJsonObject &json)
{
    GoldenRecord record;
    record.typeId = QFileInfo(file).completeBaseName();
    record.name = name;
    record.hostState = quint32(json.value("hostState").toDouble());
    record.checksum = json.value("sha256").toString().toLatin1();
    const QJsonObject properties = json.value("properties").toObject();
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        const QVariant value = goldenFromJson(property.value());
        if (!value.isValid())
            return unreadable(file, name + '.' + property.key(),
                              "expected the value of a property");
        record.properties.insert(property.key(), value);
    }
    if (record.properties.isEmpty())
        return unreadable(file, name, "expected values of properties");
    return record;
}

/// Appends the records of one operation.
std::optional<Problem> readOperation(const QString &file, QList<GoldenRecord> &records)
{
    const Result<QByteArray> text = readFileBytes(file);
    if (!text)
        return text.problem();
    const QJsonObject json = QJsonDocument::fromJson(text.value()).object();
    const QStringList names = json.keys();
    for (const QString &name : names) {
        Result<GoldenRecord> record = readValues(file, name, json.value(name).toObject());
        if (!record)
            return record.problem();
        if (record.value().checksum.isEmpty()) {
            const QDir folder = QFileInfo(file).dir();
            Result<QByteArray> bytes = readFileBytes(folder.filePath(record.value().fileName()));
            if (!bytes)
                return bytes.problem();
            record.value().bytes = bytes.value();
        }
        records.append(record.value());
    }
    return std::nullopt;
}

QJsonObject valuesOf(const GoldenRecord &record)
{
    QJsonObject properties;
    for (auto property = record.properties.begin(); property != record.properties.end(); ++property)
        properties.insert(property.key(), goldenToJson(property.value()));
    QJsonObject json{{"properties", properties}};
    if (record.hostState != 0)
        json.insert("hostState", double(record.hostState));
    if (!record.checksum.isEmpty())
        json.insert("sha256", QString::fromLatin1(record.checksum));
    return json;
}

/// The content of all files, by their names.
QMap<QString, QByteArray> filesOf(const QList<GoldenRecord> &records, const QByteArray &task)
{
    QMap<QString, QByteArray> files{{"all.task", task}};
    QMap<QString, QJsonObject> operations;
    for (const GoldenRecord &record : records) {
        operations[record.typeId].insert(record.name, valuesOf(record));
        if (record.checksum.isEmpty())
            files.insert(record.fileName(), record.bytes);
    }
    for (auto operation = operations.cbegin(); operation != operations.cend(); ++operation)
        files.insert(operation.key() + ".json", QJsonDocument(operation.value()).toJson());
    return files;
}

} // namespace

Result<QList<GoldenRecord>> readGoldenFolder(const QString &path)
{
    const QDir folder(path);
    const QStringList files = folder.entryList({"*.json"}, QDir::Files, QDir::Name);
    QList<GoldenRecord> records;
    for (const QString &file : files) {
        if (const auto problem = readOperation(folder.filePath(file), records))
            return *problem;
    }
    std::sort(records.begin(), records.end(), [](const auto &left, const auto &right) {
        return left.fileName() < right.fileName();
    });
    return records;
}

std::optional<Problem> writeGoldenFolder(const QString &path, const QList<GoldenRecord> &records,
                                         const QByteArray &task)
{
    const Problem unwritable{Problem::Reason::UnwritableFile, path, {}, "cannot be made"};
    if (QFileInfo::exists(path)) {
        return Problem{Problem::Reason::UnwritableFile,
                       path,
                       {},
                       "is there already; what a version has written never changes"};
    }
    // Put together beside it, so that it appears whole.
    QTemporaryDir folder(path + "-XXXXXX");
    if (!folder.isValid())
        return unwritable;
    const QMap<QString, QByteArray> files = filesOf(records, task);
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (auto problem = writeFileBytes(folder.filePath(file.key()), file.value()))
            return problem;
    }
    if (!QFile::setPermissions(folder.path(), QFile::permissions(folder.path()) | QFile::ReadGroup |
                                                  QFile::ExeGroup | QFile::ReadOther |
                                                  QFile::ExeOther) ||
        !QDir().rename(folder.path(), path))
        return unwritable;
    folder.setAutoRemove(false);
    return std::nullopt;
}
