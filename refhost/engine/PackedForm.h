#pragma once

#include <QByteArray>
#include <QDataStream>

/// How a packed task is laid out; docs/task-format.md goes through it byte by byte.
namespace PackedForm {

/// What stands where in the header, and how much.
constexpr int versionOffset = 8;
constexpr int lengthOffset = 12;
constexpr int recordVersionOffset = 16;
constexpr int contentOffset = 20;
constexpr int checksumSize = 32;
/// A task of no variables and no steps.
constexpr int smallestFile = contentOffset + 8 + checksumSize;

/// The least that one variable and one step take: their texts empty, no value, an empty record.
constexpr int smallestVariable = 6;
constexpr int smallestStep = 8;

/// The format this program writes, and the newest it reads.
constexpr quint32 version = 1;

/// The version of the streams in which records are written, and the newest this program reads.
constexpr auto recordVersion = QDataStream::Qt_5_15;
constexpr quint32 newestRecordVersion = QDataStream::Qt_DefaultCompiledVersion;

/// How many lists may stand in each other: as many as Qt's parser takes in a JSON task, where three
/// of its 1024 levels stand around a value.
constexpr int deepestList = 1021;

/// What kind of value comes next. A variable without a start value has `None`.
enum class ValueKind : quint8 {
    None = 0,
    False = 1,
    True = 2,
    Int = 3,      ///< 32 bits
    LongLong = 4, ///< 64 bits
    Double = 5,   ///< 64 bits of IEEE 754
    Text = 6,     ///< length in bytes, all ones for a null text; UTF-16
    List = 7      ///< number of elements; then each with its kind
};

/// The bytes a packed task begins with. The first stands in no JSON text, and whoever changes line
/// ends changes them.
QByteArray magic();

/// The checksum that follows `content`, which is everything before it.
QByteArray checksum(const QByteArray &content);

/// Sets the byte order and the version in which all but the records is written.
void prepare(QDataStream &stream);

} // namespace PackedForm
