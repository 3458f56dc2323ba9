#include "refhost/validator/trials/OperationCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/Specimen.h"

#include <utility>

Outcome examineOperations(CheckContext &context, OperationNeeds needs,
                          const std::function<void(Specimen &)> &examine)
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (Operation *prototype : prototypes) {
        Specimen specimen(*prototype, context);
        // Other checks tell of a clone that is none.
        if (needs != OperationNeeds::Nothing && !specimen.canBeCloned())
            specimen.remark(QStringLiteral("cannot be cloned; not checked"));
        else if (needs == OperationNeeds::CloneAndResultVariable && !specimen.hasResultVariable())
            specimen.remark(QStringLiteral("has no property resultVar; not checked"));
        else
            examine(specimen);
        specimen.addFindingsTo(outcome);
    }
    return outcome;
}

OperationCheck::OperationCheck(CheckInfo info, Needs needs)
    : Check(std::move(info))
    , m_needs(needs)
{
}

Outcome OperationCheck::run(CheckContext &context) const
{
    return examineOperations(context, m_needs,
                             [&](Specimen &specimen) { examine(specimen, context); });
}
