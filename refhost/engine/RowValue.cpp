#include "refhost/engine/RowValue.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"

namespace {

/// Returns the characters of a number or a truth value; a null string for another value.
QString spelled(const JsonValue &json, const std::function<QByteArray()> &written)
{
    if (json.isBool() || json.isInteger())
        return jsonText(json);
    return json.isNumber() ? QString::fromLatin1(written()) : QString();
}

/// Returns true if the double nearest to the whole number that `text` spells is another number.
bool isRounded(const QString &text, double nearest)
{
    const Result<JsonValue> json = parseJson(text);
    const bool isWhole = json && (json.value().isInteger() || json.value().isWideInteger());
    return isWhole && QString::number(nearest, 'f', 0) != text.trimmed();
}

/// Returns what the string spells; invalid if it spells no value of the type.
QVariant valueOf(const QString &text, VarType type)
{
    if (type != VarType::Int && type != VarType::Double && type != VarType::Bool)
        return {};
    const Result<QVariant> value = variantFromText(text, type);
    if (!value || (type == VarType::Double && isRounded(text, value.value().toDouble())))
        return {};
    return value.value();
}

} // namespace

Result<QVariant> variantFromRow(const JsonValue &json, VarType type,
                                const std::function<QByteArray()> &written)
{
    if (type == VarType::String && !json.isString()) {
        const QString text = spelled(json, written);
        if (!text.isNull())
            return QVariant(text);
    }
    if (type != VarType::String && json.isString()) {
        const QVariant value = valueOf(json.toString(), type);
        if (value.isValid())
            return value;
    }
    return variantFromJson(json, type);
}
