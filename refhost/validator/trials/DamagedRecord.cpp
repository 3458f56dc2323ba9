#include "refhost/validator/trials/DamagedRecord.h"

#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

/// Does with the step what a host that shows and runs it does.
std::optional<QString> use(Operation &step, const Specimen &specimen)
{
    MessageLog log;
    VariableScope scope = sampleScope(specimen.resultType());
    const auto shown = thrownBy([&] {
        step.toString();
        step.description();
        delete step.clone(nullptr);
    });
    const auto run = traceStep(step, scope).thrown;
    const auto saved = saveRecord(step).thrown;
    return shown ? shown : run ? run : saved;
}

} // namespace

LoadedRecord loadDamaged(Specimen &specimen, const QByteArray &bytes, const RecordForm &form,
                         const QString &place)
{
    specimen.doing(QStringLiteral("loadOperation, ") + place);
    const auto step = specimen.newStep();
    LoadedRecord loaded = loadRecord(*step, bytes, form);
    if (loaded.thrown)
        specimen.fail(QStringLiteral("%1: loadOperation throws %2").arg(place, *loaded.thrown));
    specimen.doing(QStringLiteral("using a step after loadOperation, ") + place);
    if (const auto thrown = use(*step, specimen))
        specimen.fail(QStringLiteral("%1: the step throws %2 afterwards").arg(place, *thrown));
    return loaded;
}
