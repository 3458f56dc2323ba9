#include "tests/fuzz/JsonCheck.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonWriter.h"
#include "tests/engine/RandomJson.h"

namespace {

QString checkWritten(const JsonValue &value, const QByteArray &text)
{
    const Result<JsonValue> back = parseJson(text);
    if (!back)
        return "the written text cannot be read: " + back.problem().toString();
    return isSameJson(value, back.value()) ? QString()
                                           : "the written text is read as another value";
}

} // namespace

QString checkJson(ByteSource source)
{
    QByteArray bytes;
    while (!source.isEmpty())
        bytes.append(static_cast<char>(source.takeByte()));
    const Result<JsonValue> value = parseJson(bytes);
    if (!value)
        return value.problem().place.startsWith("line ") ? QString() : "the problem has no place";
    QByteArray compact;
    appendJson(compact, value.value());
    const QString difference = checkWritten(value.value(), compact);
    return difference.isEmpty() ? checkWritten(value.value(), indentedJson(value.value()))
                                : difference;
}
