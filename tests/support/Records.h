#pragma once

#include "Operation.h"

#include <QByteArray>
#include <QDataStream>

/// How the bytes of a record are laid out.
struct RecordForm
{
    QDataStream::ByteOrder byteOrder = QDataStream::BigEndian;
    QDataStream::Version version = QDataStream::Qt_5_15;
};

/// The record of `operation`.
QByteArray saveRecord(const Operation &operation, RecordForm form = {});

/// Reads `record` into `operation`; the state of the stream afterwards.
QDataStream::Status loadRecord(Operation &operation, const QByteArray &record,
                               RecordForm form = {});
