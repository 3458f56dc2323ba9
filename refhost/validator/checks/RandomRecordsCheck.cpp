#include "refhost/validator/checks/RandomRecordsCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/DamagedRecord.h"
#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

#include <QRandomGenerator>

namespace {

void scramble(QByteArray &bytes, QRandomGenerator &random)
{
    constexpr int mostChanges = 4;
    const QByteArray lengths = QByteArray::fromHex("00017F80FEFF");
    for (int i = random.bounded(mostChanges) + 1; i > 0 && !bytes.isEmpty(); --i) {
        // Where lengths stand, all bits set is not the same as any other number.
        const char byte = random.bounded(2) == 0 ? lengths.at(random.bounded(lengths.size()))
                                                 : static_cast<char>(random.bounded(256));
        bytes[random.bounded(bytes.size())] = byte;
    }
}

QByteArray noise(QRandomGenerator &random)
{
    constexpr int mostBytes = 200;
    QByteArray bytes;
    for (int i = random.bounded(mostBytes); i > 0; --i)
        bytes.append(static_cast<char>(random.bounded(256)));
    return bytes;
}

} // namespace

RandomRecordsCheck::RandomRecordsCheck()
    : OperationCheck(
          {QStringLiteral("behaviour.randomRecords"), 4,
           QStringLiteral("Bytes that are no record are survived, with memory to spare.")})
{
}

void RandomRecordsCheck::examine(Specimen &specimen, CheckContext &context) const
{
    constexpr int mebibytes = 256;
    constexpr int rounds = 400;
    // Where there is no limit a plug-in that takes as much as a length asks for gets away with it.
    limitMemory(mebibytes);
    QRandomGenerator random(context.seed());
    const QList<RecordForm> forms = RecordForm::all();
    const auto step = specimen.newStep();
    setUnusual(*step, OperationClass(specimen.prototype()));
    for (int round = 0; round < rounds && !specimen.hasFailed(); ++round) {
        const RecordForm &form = forms.at(random.bounded(forms.size()));
        QByteArray bytes = saveRecord(*step, form).bytes;
        if (round % 4 == 0)
            bytes = noise(random);
        else
            scramble(bytes, random);
        loadDamaged(specimen, bytes, form,
                    QStringLiteral("bytes %1 (%2)")
                        .arg(QString::fromLatin1(bytes.toHex()), form.toString()));
    }
}
