#include "refhost/engine/PackedValue.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/ExactValue.h"
#include "refhost/engine/PackedForm.h"

#include <QDataStream>
#include <QIODevice>
#include <QVariantList>

namespace {

using PackedForm::ValueKind;

Problem tooDeep(Problem::Reason reason)
{
    return {reason,
            {},
            {},
            EngineText::tr("more than %1 lists within each other; expected fewer")
                .arg(PackedForm::deepestList)};
}

Problem malformed(const QString &message)
{
    return {Problem::Reason::MalformedContent, {}, {}, message};
}

void writeKind(QDataStream &stream, ValueKind kind)
{
    stream << static_cast<quint8>(kind);
}

std::optional<Problem> writeValue(QDataStream &stream, const QVariant &value, int depth);

/// `depth` is the number of lists around this one and itself.
std::optional<Problem> writeList(QDataStream &stream, const QVariantList &list, int depth)
{
    if (depth > PackedForm::deepestList)
        return tooDeep(Problem::Reason::UnfitValue);
    writeKind(stream, ValueKind::List);
    stream << static_cast<quint32>(list.size());
    for (const QVariant &element : list) {
        if (auto problem = writeValue(stream, element, depth))
            return problem;
    }
    return std::nullopt;
}

std::optional<Problem> writeValue(QDataStream &stream, const QVariant &value, int depth)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        writeKind(stream, ValueKind::None);
        return std::nullopt;
    case QMetaType::Bool:
        writeKind(stream, value.toBool() ? ValueKind::True : ValueKind::False);
        return std::nullopt;
    case QMetaType::Int:
        writeKind(stream, ValueKind::Int);
        stream << static_cast<qint32>(value.toInt());
        return std::nullopt;
    case QMetaType::LongLong:
        writeKind(stream, ValueKind::LongLong);
        stream << static_cast<qint64>(value.toLongLong());
        return std::nullopt;
    case QMetaType::Double:
        writeKind(stream, ValueKind::Double);
        stream << value.toDouble();
        return std::nullopt;
    case QMetaType::QString:
        writeKind(stream, ValueKind::Text);
        stream << value.toString();
        return std::nullopt;
    case QMetaType::QVariantList:
        return writeList(stream, value.toList(), depth + 1);
    default:
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       {},
                       EngineText::tr("%1; expected a text, a number, true or false, or a list")
                           .arg(valueWords(value))};
    }
}

template <typename T>
QVariant readScalar(QDataStream &stream)
{
    T value{};
    stream >> value;
    return QVariant::fromValue(value);
}

Result<QVariant> readValue(QDataStream &stream, int depth);

Result<QVariant> readList(QDataStream &stream, int depth)
{
    if (depth > PackedForm::deepestList)
        return tooDeep(Problem::Reason::MalformedContent);
    quint32 count = 0;
    stream >> count;
    const qint64 room = stream.device()->bytesAvailable();
    if (count > room) {
        return malformed(EngineText::tr("a list of length %1; there is room for %2")
                             .arg(QString::number(count), QString::number(room)));
    }
    // Nothing is reserved: each of many lists within each other may claim all the room there is.
    QVariantList list;
    for (quint32 i = 0; i < count; ++i) {
        const Result<QVariant> element = readValue(stream, depth);
        if (!element)
            return element.problem();
        list.append(element.value());
    }
    return QVariant(list);
}

/// A value that is no list, not yet held to what was there.
Result<QVariant> readPlainValue(QDataStream &stream, ValueKind kind)
{
    switch (kind) {
    case ValueKind::None:
        return QVariant();
    case ValueKind::False:
        return QVariant(false);
    case ValueKind::True:
        return QVariant(true);
    case ValueKind::Int:
        return readScalar<qint32>(stream);
    case ValueKind::LongLong:
        return readScalar<qint64>(stream);
    case ValueKind::Double:
        return readScalar<double>(stream);
    case ValueKind::Text:
        return readScalar<QString>(stream);
    case ValueKind::List:
        break;
    }
    return malformed(EngineText::tr("a value of kind %1; expected a kind from %2 to %3")
                         .arg(QString::number(static_cast<int>(kind)),
                              QString::number(static_cast<int>(ValueKind::None)),
                              QString::number(static_cast<int>(ValueKind::List))));
}

Result<QVariant> readValue(QDataStream &stream, int depth)
{
    quint8 number = 0;
    stream >> number;
    const auto kind = static_cast<ValueKind>(number);
    Result<QVariant> value =
        kind == ValueKind::List ? readList(stream, depth + 1) : readPlainValue(stream, kind);
    if (stream.status() != QDataStream::Ok)
        return malformed(EngineText::tr("a value beyond the end, or a text of half letters"));
    return value;
}

} // namespace

std::optional<Problem> writePackedValue(QDataStream &stream, const QVariant &value)
{
    return writeValue(stream, value, 0);
}

Result<QVariant> readPackedValue(QDataStream &stream)
{
    return readValue(stream, 0);
}
