#include "refhost/validator/checks/TruncatedRecordsCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/DamagedRecord.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

TruncatedRecordsCheck::TruncatedRecordsCheck()
    : OperationCheck({QStringLiteral("behaviour.truncatedRecords"), 4,
                      QStringLiteral("A record cut off anywhere is survived, and the stream tells "
                                     "it.")})
{
}

void TruncatedRecordsCheck::examine(Specimen &specimen, CheckContext &) const
{
    const auto step = specimen.newStep();
    setUnusual(*step, OperationClass(specimen.prototype()));
    const RecordForm form;
    const QByteArray record = saveRecord(*step, form).bytes;
    for (int size = 0; size < record.size(); ++size) {
        const QString place = QStringLiteral("%1 of %2 bytes").arg(size).arg(record.size());
        const LoadedRecord loaded = loadDamaged(specimen, record.left(size), form, place);
        if (loaded.status == QDataStream::Ok)
            specimen.fail(place + QStringLiteral(": the stream is without an error afterwards"));
    }
}
