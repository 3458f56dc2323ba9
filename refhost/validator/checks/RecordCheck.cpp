#include "refhost/validator/checks/RecordCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

namespace {

/// Reads a record at `position` into a new step and compares with the step it was saved from.
void examineLoading(Specimen &specimen, const Operation &saved, const QByteArray &bytes,
                    qint64 position, qint64 size)
{
    const OperationClass operationClass(saved);
    const auto step = specimen.newStep();
    const LoadedRecord loaded = loadRecord(*step, bytes, {}, position);
    const QStringList differing = differences(*step, saved, operationClass);
    for (const QString &difference : differing)
        specimen.fail(QStringLiteral("after loadOperation, ") + difference);
    if (baseRecord(*step) != baseRecord(saved))
        specimen.fail(QStringLiteral("loadOperation does not restore the baseState"));
    if (loaded.bytesRead != size) {
        specimen.fail(QStringLiteral("loadOperation reads %1 bytes of a record of %2")
                          .arg(loaded.bytesRead)
                          .arg(size));
    }
    if (loaded.status != QDataStream::Ok)
        specimen.fail(QStringLiteral("loadOperation leaves the stream in an error"));
    if (saveRecord(*step).bytes != bytes.mid(static_cast<int>(position), static_cast<int>(size)))
        specimen.fail(QStringLiteral("saved again, the record is another one"));
}

void examineRound(Specimen &specimen, const OperationClass &operationClass, int round)
{
    const auto step = specimen.newStep();
    setOdd(*step, operationClass, round);
    setBaseState(*step, 0xC0FFEE01 + static_cast<quint32>(round));
    specimen.doing(QStringLiteral("saveOperation, odd values, round %1").arg(round));
    const SavedRecord saved = saveRecord(*step);
    if (saved.thrown)
        return; // another check tells
    if (!saved.bytes.startsWith(baseRecord(*step)))
        specimen.fail(QStringLiteral("the record does not begin with that of Operation"));
    specimen.doing(QStringLiteral("loadOperation, odd values, round %1").arg(round));
    examineLoading(specimen, *step, saved.bytes, 0, saved.bytes.size());
    // As in a task, where the next step follows without a gap.
    if (!specimen.hasFailed()) {
        examineLoading(specimen, *step, saved.bytes + saved.bytes, saved.bytes.size(),
                       saved.bytes.size());
    }
}

} // namespace

RecordCheck::RecordCheck()
    : OperationCheck(
          {QStringLiteral("behaviour.record"), 4,
           QStringLiteral("A record begins with the base record and restores all, to the "
                          "byte.")})
{
}

void RecordCheck::examine(Specimen &specimen, CheckContext &) const
{
    const OperationClass operationClass(specimen.prototype());
    const int rounds = oddRounds(operationClass);
    for (int round = 0; round < rounds && !specimen.hasFailed(); ++round)
        examineRound(specimen, operationClass, round);
}
