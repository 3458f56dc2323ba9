#include "refhost/validator/checks/TextsCheck.h"

#include "refhost/validator/CheckContext.h"

#include "Operation.h"

TextsCheck::TextsCheck()
    : Check({QStringLiteral("catalog.texts"), 2,
             QStringLiteral("Root, name, summary and description of a fresh operation are given.")})
{
}

Outcome TextsCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const auto demand = [&](const QString &function, QString (Operation::*text)() const) {
            context.doing(name + QStringLiteral(": ") + function);
            if ((prototype->*text)().trimmed().isEmpty())
                outcome.fail(QStringLiteral("%1: %2 is empty").arg(name, function));
        };
        demand(QStringLiteral("root"), &Operation::root);
        demand(QStringLiteral("typeName"), &Operation::typeName);
        demand(QStringLiteral("toString"), &Operation::toString);
        demand(QStringLiteral("description"), &Operation::description);
    }
    return outcome;
}
