#include "refhost/validator/checks/ResultVariableCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

namespace {

void checkClass(const QString &name, const OperationClass &declared, Outcome &outcome)
{
    const QString resultVar = QStringLiteral("resultVar");
    if (!declared.hasProperty(resultVar)) {
        outcome.fail(name + QStringLiteral(": there is no property resultVar"));
        return;
    }
    const QMetaProperty &last = declared.properties().constLast();
    if (nameOf(last) != resultVar) {
        outcome.fail(QStringLiteral("%1: the last property is %2; expected resultVar")
                         .arg(name, nameOf(last)));
    }
    const QString editor = declared.value(QStringLiteral("editor"), resultVar).value_or(QString());
    if (!editor.startsWith(QLatin1String("VARNAME:"))) {
        outcome.fail(QStringLiteral("%1: editor_resultVar: \"%2\"; expected VARNAME: and a type")
                         .arg(name, editor));
    }
}

} // namespace

ResultVariableCheck::ResultVariableCheck()
    : Check({QStringLiteral("schema.resultVar"), 3,
             QStringLiteral("The last property is resultVar, the name of a variable.")})
{
}

Outcome ResultVariableCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes)
        checkClass(context.nameOf(*prototype), OperationClass(*prototype), outcome);
    return outcome;
}
