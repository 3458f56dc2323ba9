#include "refhost/engine/JsonFile.h"

#include "refhost/engine/FileBytes.h"

#include <QByteArray>

Result<JsonObject> readJsonObject(const QString &path)
{
    const Result<QByteArray> json = readFileBytes(path);
    if (!json)
        return json.problem();
    return parseJsonObject(json.value(), path);
}
