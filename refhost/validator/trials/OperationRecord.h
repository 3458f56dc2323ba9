#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QList>
#include <QString>

#include <optional>

class Operation;

/// How the bytes of a record are laid out.
struct RecordForm
{
    QDataStream::ByteOrder byteOrder = QDataStream::BigEndian;
    QDataStream::Version version = QDataStream::Qt_5_15;

    /// For instance "little endian, 5.6".
    QString toString() const;

    /// Both byte orders in the versions in which streams of tasks may be.
    static QList<RecordForm> all();
};

/// What writing a record gave.
struct SavedRecord
{
    QByteArray bytes;
    bool streamIsSame = true;      ///< byte order and version of the stream are as they were
    std::optional<QString> thrown; ///< what `saveOperation` threw
};

/// What reading a record gave.
struct LoadedRecord
{
    QDataStream::Status status = QDataStream::Ok;
    qint64 bytesRead = 0;
    bool streamIsSame = true;
    std::optional<QString> thrown;
};

SavedRecord saveRecord(const Operation &operation, const RecordForm &form = {});

/// Reads a record that begins at `position` of `bytes`.
LoadedRecord loadRecord(Operation &operation, const QByteArray &bytes, const RecordForm &form = {},
                        qint64 position = 0);

/// What the base class writes for the operation.
QByteArray baseRecord(const Operation &operation, const RecordForm &form = {});

/// Sets the state that the host keeps with every operation.
void setBaseState(Operation &operation, quint32 state);
