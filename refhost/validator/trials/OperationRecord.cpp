#include "refhost/validator/trials/OperationRecord.h"

#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <QIODevice>

namespace {

void setForm(QDataStream &stream, const RecordForm &form)
{
    stream.setByteOrder(form.byteOrder);
    stream.setVersion(form.version);
}

bool hasForm(const QDataStream &stream, const RecordForm &form)
{
    return stream.byteOrder() == form.byteOrder && stream.version() == form.version;
}

QString versionName(QDataStream::Version version)
{
    switch (version) {
    case QDataStream::Qt_4_6:
        return QStringLiteral("4.6");
    case QDataStream::Qt_5_0:
        return QStringLiteral("5.0");
    case QDataStream::Qt_5_6:
        return QStringLiteral("5.6");
    case QDataStream::Qt_5_12:
        return QStringLiteral("5.12");
    default:
        return QStringLiteral("5.15");
    }
}

} // namespace

QString RecordForm::toString() const
{
    const QString order = byteOrder == QDataStream::BigEndian ? QStringLiteral("big endian")
                                                              : QStringLiteral("little endian");
    return order + QStringLiteral(", ") + versionName(version);
}

QList<RecordForm> RecordForm::all()
{
    QList<RecordForm> forms;
    for (const auto byteOrder : {QDataStream::BigEndian, QDataStream::LittleEndian}) {
        for (const auto version : {QDataStream::Qt_4_6, QDataStream::Qt_5_0, QDataStream::Qt_5_6,
                                   QDataStream::Qt_5_12, QDataStream::Qt_5_15}) {
            forms.append({byteOrder, version});
        }
    }
    return forms;
}

SavedRecord saveRecord(const Operation &operation, const RecordForm &form)
{
    SavedRecord saved;
    QDataStream stream(&saved.bytes, QIODevice::WriteOnly);
    setForm(stream, form);
    saved.thrown = thrownBy([&] { operation.saveOperation(stream); });
    saved.streamIsSame = hasForm(stream, form);
    return saved;
}

LoadedRecord loadRecord(Operation &operation, const QByteArray &bytes, const RecordForm &form,
                        qint64 position)
{
    LoadedRecord loaded;
    QDataStream stream(bytes);
    setForm(stream, form);
    stream.device()->seek(position);
    loaded.thrown = thrownBy([&] { operation.loadOperation(stream); });
    loaded.status = stream.status();
    loaded.bytesRead = stream.device()->pos() - position;
    loaded.streamIsSame = hasForm(stream, form);
    return loaded;
}

QByteArray baseRecord(const Operation &operation, const RecordForm &form)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setForm(stream, form);
    operation.Operation::saveOperation(stream);
    return bytes;
}

void setBaseState(Operation &operation, quint32 state)
{
    QByteArray bytes;
    QDataStream writer(&bytes, QIODevice::WriteOnly);
    writer << state;
    QDataStream reader(bytes);
    operation.Operation::loadOperation(reader);
}
