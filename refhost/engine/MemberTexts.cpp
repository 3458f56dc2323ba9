#include "refhost/engine/MemberTexts.h"

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

/// Returns the place behind the string that begins at `begin`.
int endOfString(const QByteArray &json, int begin)
{
    for (int i = begin + 1; i < json.size(); ++i) {
        if (json.at(i) == '\\')
            ++i;
        else if (json.at(i) == '"')
            return i + 1;
    }
    return json.size();
}

/// Returns the place of the character behind a value that begins at or after `begin`: a comma, or
/// the bracket that closes what the value stands in.
int endOfValue(const QByteArray &json, int begin)
{
    int depth = 0;
    for (int i = begin; i < json.size();) {
        const char character = json.at(i);
        const bool closes = character == '}' || character == ']';
        if (depth == 0 && (closes || character == ','))
            return i;
        if (closes)
            --depth;
        else if (character == '{' || character == '[')
            ++depth;
        i = character == '"' ? endOfString(json, i) : i + 1;
    }
    return json.size();
}

/// Returns the part from `begin` to before `end` without white space around it.
QByteArray part(const QByteArray &json, int begin, int end)
{
    while (begin < end && isSpace(json.at(begin)))
        ++begin;
    while (end > begin && isSpace(json.at(end - 1)))
        --end;
    return json.mid(begin, end - begin);
}

} // namespace

QVector<MemberText> memberTexts(const QByteArray &object)
{
    QVector<MemberText> members;
    int begin = object.indexOf('"');
    while (begin >= 0) {
        const int endOfKey = endOfString(object, begin);
        const int colon = object.indexOf(':', endOfKey);
        if (colon < 0)
            break;
        const int end = endOfValue(object, colon + 1);
        members.append({part(object, begin, endOfKey), part(object, colon + 1, end)});
        begin = end < object.size() && object.at(end) == ',' ? object.indexOf('"', end) : -1;
    }
    return members;
}
