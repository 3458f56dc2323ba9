#include "refhost/engine/JsonTypes.h"

#include <algorithm>
#include <utility>

JsonObject::JsonObject(std::initializer_list<JsonMember> members)
    : m_members(members)
{
}

const JsonMember *JsonObject::find(const QString &key) const
{
    const auto found = std::find_if(m_members.cbegin(), m_members.cend(),
                                    [&](const JsonMember &member) { return member.key == key; });
    return found == m_members.cend() ? nullptr : &*found;
}

JsonValue JsonObject::value(const QString &key) const
{
    const JsonMember *const member = find(key);
    return member ? member->value : JsonValue();
}

bool JsonObject::contains(const QString &key) const
{
    return find(key) != nullptr;
}

void JsonObject::insert(const QString &key, const JsonValue &value)
{
    const auto found = std::find_if(m_members.begin(), m_members.end(),
                                    [&](const JsonMember &member) { return member.key == key; });
    if (found == m_members.end())
        append(key, value);
    else
        found->value = value;
}

void JsonObject::append(const QString &key, JsonValue value)
{
    m_members.append(JsonMember{key, std::move(value)});
}

void JsonObject::sort()
{
    std::sort(m_members.begin(), m_members.end(),
              [](const JsonMember &left, const JsonMember &right) { return left.key < right.key; });
}

QStringList JsonObject::keys() const
{
    QStringList keys;
    for (const JsonMember &member : m_members)
        keys.append(member.key);
    return keys;
}

double JsonValue::toDouble() const
{
    if (isInteger())
        return static_cast<double>(toInteger());
    return isWideInteger() ? wideDigits().toDouble() : as<double>();
}

void JsonValue::append(JsonValue element)
{
    std::get<JsonArray>(m_content).append(std::move(element));
}

void JsonValue::append(const QString &key, JsonValue value)
{
    std::get<JsonObject>(m_content).append(key, std::move(value));
}
