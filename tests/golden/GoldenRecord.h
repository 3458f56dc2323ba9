#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

/// A record that some version has written, with the values it holds.
struct GoldenRecord
{
    QString typeId;
    QString name;           ///< which of the records of its operation, such as "defaults"
    quint32 hostState = 0;  ///< what the host keeps in it
    QVariantMap properties; ///< of type QString, int or bool; a null text is not an empty one
    QByteArray bytes;       ///< empty where only a checksum is kept
    QByteArray checksum;    ///< SHA-256 of the bytes where they are too many to keep, else empty

    /// The file of its bytes, without a folder.
    QString fileName() const { return typeId + '.' + name + ".record"; }
};
