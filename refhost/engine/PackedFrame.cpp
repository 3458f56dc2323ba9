#include "refhost/engine/PackedFrame.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/PackedForm.h"

#include <QDataStream>
#include <QtEndian>

#include <optional>

namespace {

using Reason = Problem::Reason;

Problem problem(Reason reason, const QString &message)
{
    return {reason, {}, {}, message};
}

/// A number of the header; only where there is one.
quint32 headerNumber(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

Problem cutOff(const QByteArray &bytes, quint32 expected)
{
    return problem(Reason::WrongLength,
                   EngineText::tr("is cut off after %1 bytes; expected %2")
                       .arg(QString::number(bytes.size()), QString::number(expected)));
}

Problem tooSmall(const QByteArray &bytes)
{
    return problem(
        Reason::WrongLength,
        EngineText::tr("is cut off after %1 bytes; expected %2 or more")
            .arg(QString::number(bytes.size()), QString::number(PackedForm::smallestFile)));
}

std::optional<Problem> checkFormat(const QByteArray &bytes)
{
    if (bytes.isEmpty() || !isPackedTask(bytes)) {
        return problem(Reason::UnknownFormat,
                       EngineText::tr("is no packed task; expected the bytes %1 first")
                           .arg(QString::fromLatin1(PackedForm::magic().toHex(' '))));
    }
    if (bytes.size() < PackedForm::lengthOffset)
        return tooSmall(bytes);
    const quint32 version = headerNumber(bytes, PackedForm::versionOffset);
    if (version > PackedForm::version) {
        return problem(Reason::NewerFormat,
                       EngineText::tr("is of format %1; this program reads up to %2")
                           .arg(QString::number(version), QString::number(PackedForm::version)));
    }
    if (version < PackedForm::version) {
        return problem(Reason::UnknownFormat,
                       EngineText::tr("is of format %1; the first is %2")
                           .arg(QString::number(version), QString::number(PackedForm::version)));
    }
    return std::nullopt;
}

std::optional<Problem> checkLength(const QByteArray &bytes)
{
    if (bytes.size() < PackedForm::recordVersionOffset)
        return tooSmall(bytes);
    const quint32 length = headerNumber(bytes, PackedForm::lengthOffset);
    const auto size = static_cast<quint32>(bytes.size());
    if (size < length)
        return cutOff(bytes, length);
    if (size > length) {
        return problem(Reason::WrongLength,
                       EngineText::tr("has %1 bytes; expected %2")
                           .arg(QString::number(size), QString::number(length)));
    }
    if (length < PackedForm::smallestFile)
        return tooSmall(bytes);
    return std::nullopt;
}

std::optional<Problem> checkChecksum(const QByteArray &bytes)
{
    if (bytes.endsWith(PackedForm::checksum(bytes.chopped(PackedForm::checksumSize))))
        return std::nullopt;
    return problem(Reason::AlteredFile,
                   EngineText::tr("has been altered; its checksum is that of other bytes"));
}

std::optional<Problem> checkRecordVersion(quint32 version)
{
    if (version > PackedForm::newestRecordVersion) {
        return problem(
            Reason::NewerFormat,
            EngineText::tr("has records of stream version %1; this program reads up to %2")
                .arg(QString::number(version), QString::number(PackedForm::newestRecordVersion)));
    }
    if (version == 0) {
        return problem(
            Reason::MalformedContent,
            EngineText::tr("has records of stream version 0; expected a version from 1 to %1")
                .arg(PackedForm::newestRecordVersion));
    }
    return std::nullopt;
}

} // namespace

bool isPackedTask(const QByteArray &bytes)
{
    const QByteArray magic = PackedForm::magic();
    return !bytes.isEmpty() && magic.startsWith(bytes.left(magic.size()));
}

QByteArray packedFrame(const QByteArray &content)
{
    QByteArray bytes = PackedForm::magic();
    QDataStream stream(&bytes, QIODevice::Append);
    PackedForm::prepare(stream);
    const int length = PackedForm::contentOffset + content.size() + PackedForm::checksumSize;
    stream << PackedForm::version << static_cast<quint32>(length)
           << static_cast<quint32>(PackedForm::recordVersion);
    bytes += content;
    return bytes + PackedForm::checksum(bytes);
}

Result<PackedContent> openPackedFrame(const QByteArray &bytes)
{
    for (const auto check : {checkFormat, checkLength, checkChecksum}) {
        if (const auto found = check(bytes))
            return *found;
    }
    const quint32 recordVersion = headerNumber(bytes, PackedForm::recordVersionOffset);
    if (const auto found = checkRecordVersion(recordVersion))
        return *found;
    return PackedContent{static_cast<int>(recordVersion),
                         bytes.chopped(PackedForm::checksumSize).mid(PackedForm::contentOffset)};
}
