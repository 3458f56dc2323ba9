#include "tests/support/Records.h"

QByteArray saveRecord(const Operation &operation, RecordForm form)
{
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    stream.setByteOrder(form.byteOrder);
    stream.setVersion(form.version);
    operation.saveOperation(stream);
    return record;
}

QDataStream::Status loadRecord(Operation &operation, const QByteArray &record, RecordForm form)
{
    QDataStream stream(record);
    stream.setByteOrder(form.byteOrder);
    stream.setVersion(form.version);
    operation.loadOperation(stream);
    return stream.status();
}
