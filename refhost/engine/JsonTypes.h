#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <cstddef>
#include <initializer_list>
#include <variant>

class JsonValue;
struct JsonMember;

/// The elements of a JSON array.
using JsonArray = QVector<JsonValue>;

/// The members of a JSON object in their order.
class JsonObject
{
public:
    JsonObject() = default;
    JsonObject(std::initializer_list<JsonMember> members);

    /// The value of `key`, undefined when the object has no such key. The cost grows with the
    /// number of members.
    JsonValue value(const QString &key) const;
    bool contains(const QString &key) const;

    /// Sets the value of `key`: in place when the object has the key, otherwise as its last member.
    /// The cost grows with the number of members.
    void insert(const QString &key, const JsonValue &value);

    /// Adds a last member, in constant time. The object must not have the key.
    void append(const QString &key, JsonValue value);

    /// Puts the members into the ascending order of their keys.
    void sort();

    bool isEmpty() const { return m_members.isEmpty(); }
    int size() const { return m_members.size(); }
    QStringList keys() const;

    QVector<JsonMember>::const_iterator begin() const { return m_members.cbegin(); }
    QVector<JsonMember>::const_iterator end() const { return m_members.cend(); }

private:
    const JsonMember *find(const QString &key) const;

    QVector<JsonMember> m_members;
};

/// A JSON value. Unlike Qt's, it keeps the order of members, every integer of 64 bits and the
/// difference between `1` and `1.0`.
class JsonValue
{
public:
    /// A whole number that does not fit into 64 bits with a sign, in its own digits.
    struct WideInteger
    {
        QString digits;
    };

    JsonValue() = default; ///< undefined: no value at all
    JsonValue(std::nullptr_t)
        : m_content(nullptr)
    {
    }
    JsonValue(bool value)
        : m_content(value)
    {
    }
    JsonValue(int value)
        : m_content(qint64(value))
    {
    }
    JsonValue(qint64 value)
        : m_content(value)
    {
    }
    JsonValue(double value)
        : m_content(value)
    {
    }
    JsonValue(const WideInteger &value)
        : m_content(value)
    {
    }
    JsonValue(const QString &value)
        : m_content(value)
    {
    }
    JsonValue(const JsonArray &value)
        : m_content(value)
    {
    }
    JsonValue(const JsonObject &value)
        : m_content(value)
    {
    }
    JsonValue(const void *) = delete; ///< would be a bool

    bool isUndefined() const { return is<std::monostate>(); }
    bool isNull() const { return is<std::nullptr_t>(); }
    bool isBool() const { return is<bool>(); }
    bool isInteger() const { return is<qint64>(); }
    bool isWideInteger() const { return is<WideInteger>(); }
    bool isDouble() const { return is<double>(); }
    bool isNumber() const { return isInteger() || isDouble() || isWideInteger(); }
    bool isString() const { return is<QString>(); }
    bool isArray() const { return is<JsonArray>(); }
    bool isObject() const { return is<JsonObject>(); }

    // The content; false, 0 or empty for a value of another kind.

    bool toBool() const { return as<bool>(); }
    qint64 toInteger() const { return as<qint64>(); }
    QString wideDigits() const { return as<WideInteger>().digits; }
    QString toString(const QString &otherwise = {}) const
    {
        return isString() ? as<QString>() : otherwise;
    }
    JsonArray toArray() const { return as<JsonArray>(); }
    JsonObject toObject() const { return as<JsonObject>(); }

    /// The double nearest to a number of any kind.
    double toDouble() const;

    /// Adds an element to an array, in constant time.
    void append(JsonValue element);

    /// Adds a member to an object as `JsonObject::append` does.
    void append(const QString &key, JsonValue value);

private:
    template <typename T>
    bool is() const
    {
        return std::holds_alternative<T>(m_content);
    }

    template <typename T>
    T as() const
    {
        const T *const content = std::get_if<T>(&m_content);
        return content ? *content : T();
    }

    std::variant<std::monostate, std::nullptr_t, bool, qint64, double, WideInteger, QString,
                 JsonArray, JsonObject>
        m_content;
};

/// A key of an object with its value.
struct JsonMember
{
    QString key;
    JsonValue value;
};

Q_DECLARE_TYPEINFO(JsonValue, Q_MOVABLE_TYPE);
Q_DECLARE_TYPEINFO(JsonMember, Q_MOVABLE_TYPE);
