#include "refhost/validator/checks/RecordFormsCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/OddSettings.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

#include <algorithm>

namespace {

void examineForm(Specimen &specimen, const Operation &step, const RecordForm &form)
{
    const QString place = form.toString();
    specimen.doing(QStringLiteral("saveOperation, ") + place);
    const SavedRecord saved = saveRecord(step, form);
    if (!saved.streamIsSame)
        specimen.fail(place + QStringLiteral(": saveOperation changes the stream"));
    if (!saved.bytes.startsWith(baseRecord(step, form)))
        specimen.fail(place + QStringLiteral(": the record does not begin with that of Operation"));
    specimen.doing(QStringLiteral("loadOperation, ") + place);
    const auto copy = specimen.newStep();
    const LoadedRecord loaded = loadRecord(*copy, saved.bytes, form);
    if (!loaded.streamIsSame)
        specimen.fail(place + QStringLiteral(": loadOperation changes the stream"));
    const QStringList differing = differences(*copy, step, OperationClass(step));
    for (const QString &difference : differing)
        specimen.fail(QStringLiteral("%1: after loadOperation, %2").arg(place, difference));
    if (loaded.bytesRead != saved.bytes.size()) {
        specimen.fail(QStringLiteral("%1: loadOperation reads %2 bytes of a record of %3")
                          .arg(place)
                          .arg(loaded.bytesRead)
                          .arg(saved.bytes.size()));
    }
    if (saveRecord(*copy, form).bytes != saved.bytes)
        specimen.fail(place + QStringLiteral(": saved again, the record is another one"));
}

/// The record less the base record.
QByteArray ownFields(const Operation &step, QDataStream::ByteOrder byteOrder)
{
    const RecordForm form{byteOrder, QDataStream::Qt_5_15};
    return saveRecord(step, form).bytes.mid(baseRecord(step, form).size());
}

/// Numbers and the lengths of texts have to look different in the other byte order.
void examineByteOrder(Specimen &specimen, const Operation &step, const OperationClass &declared)
{
    const QList<QMetaProperty> &properties = declared.properties();
    const bool hasWords =
        std::any_of(properties.begin(), properties.end(), [](const QMetaProperty &property) {
            return property.userType() != QMetaType::Bool;
        });
    const QByteArray bigEndian = ownFields(step, QDataStream::BigEndian);
    if (hasWords && !bigEndian.isEmpty() &&
        bigEndian == ownFields(step, QDataStream::LittleEndian)) {
        specimen.fail(QStringLiteral("the record is in the same byte order whatever the stream's"));
    }
}

} // namespace

RecordFormsCheck::RecordFormsCheck()
    : OperationCheck({QStringLiteral("behaviour.recordForms"), 4,
                      QStringLiteral("A record keeps to the stream's byte order and version.")})
{
}

void RecordFormsCheck::examine(Specimen &specimen, CheckContext &) const
{
    const OperationClass operationClass(specimen.prototype());
    const auto step = specimen.newStep();
    setUnusual(*step, operationClass);
    setBaseState(*step, 0xC0FFEE01);
    const QList<RecordForm> forms = RecordForm::all();
    for (const RecordForm &form : forms)
        examineForm(specimen, *step, form);
    examineByteOrder(specimen, *step, operationClass);
}
