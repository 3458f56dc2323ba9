#include "refhost/engine/JsonFile.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/FileBytes.h"

#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>

namespace {

QString lineAndColumn(qint64 line, int column)
{
    return EngineText::tr("line %1, column %2").arg(QString::number(line), QString::number(column));
}

QString placeOf(const QJsonParseError &error, const QByteArray &text, qint64 firstLine)
{
    // Qt's parser has taken the character that it could not use, unless it was through already.
    const bool wasThrough = error.error == QJsonParseError::GarbageAtEnd;
    const QByteArray before = text.left(wasThrough ? error.offset : std::max(0, error.offset - 1));
    const int lineStart = before.lastIndexOf('\n') + 1;
    const int column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
    return lineAndColumn(firstLine + before.count('\n'), column);
}

} // namespace

Result<QJsonObject> parseJsonObject(const QByteArray &json, const QString &file, qint64 firstLine)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return Problem{Problem::Reason::MalformedJson, file, placeOf(error, json, firstLine),
                       EngineText::tr("malformed JSON (%1)").arg(error.errorString())};
    }
    if (!document.isObject()) {
        return Problem{Problem::Reason::WrongKind, file, lineAndColumn(firstLine, 1),
                       EngineText::tr("an array; expected an object in braces")};
    }
    return document.object();
}

Result<QJsonObject> readJsonObject(const QString &path)
{
    const Result<QByteArray> json = readFileBytes(path);
    if (!json)
        return json.problem();
    return parseJsonObject(json.value(), path);
}
