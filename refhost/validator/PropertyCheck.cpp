#include "refhost/validator/PropertyCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

#include <utility>

PropertyCheck::PropertyCheck(CheckInfo info)
    : Check(std::move(info))
{
}

Outcome PropertyCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const OperationClass declared(*prototype);
        for (const QMetaProperty &property : declared.properties())
            examine(name, declared, property, outcome);
    }
    return outcome;
}
