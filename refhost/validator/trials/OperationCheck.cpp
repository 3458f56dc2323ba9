#include "refhost/validator/trials/OperationCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/Specimen.h"

#include <utility>

OperationCheck::OperationCheck(CheckInfo info, Needs needs)
    : Check(std::move(info))
    , m_needs(needs)
{
}

Outcome OperationCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (Operation *prototype : prototypes) {
        Specimen specimen(*prototype, context);
        // Other checks tell of a clone that is none.
        if (m_needs != Needs::Nothing && !specimen.canBeCloned())
            specimen.remark(QStringLiteral("cannot be cloned; not checked"));
        else if (m_needs == Needs::CloneAndResultVariable && !specimen.hasResultVariable())
            specimen.remark(QStringLiteral("has no property resultVar; not checked"));
        else
            examine(specimen, context);
        specimen.addFindingsTo(outcome);
    }
    return outcome;
}
