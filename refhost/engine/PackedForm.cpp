#include "refhost/engine/PackedForm.h"

#include <QCryptographicHash>

QByteArray PackedForm::magic()
{
    return QByteArrayLiteral("\x89TASK\r\n\x1A");
}

QByteArray PackedForm::checksum(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

void PackedForm::prepare(QDataStream &stream)
{
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setVersion(QDataStream::Qt_5_15);
}
