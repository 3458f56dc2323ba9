#include "refhost/workbench/editor/ReferenceFacts.h"

#include "refhost/engine/check/TaskFacts.h"
#include "refhost/workbench/document/TaskState.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QCoreApplication>

namespace {

constexpr int nameUnits = 40;

/// The type of what a member finds; none when the variable has no such member.
VarType memberType(const OperandText &operand, const TaskVariable &variable, const QVariant &value)
{
    const QString member = operand.path.toLower();
    if (member.isEmpty() || (member == QLatin1String("items") && holdsElements(variable.type)))
        return variable.type;
    // A list that is still empty may have rows when the step runs.
    const bool mayHaveColumns = member == QLatin1String("columns") &&
                                holdsElements(variable.type) && variable.value.toList().isEmpty();
    return value.isValid() || mayHaveColumns ? VarType::Int : VarType::None;
}

Remark remarkOnMissingMember(const OperandText &operand, const TaskVariable &variable)
{
    return {Remark::Kind::Error,
            QCoreApplication::translate("ReferenceFacts", "变量 %1（%2）没有成员“%3”")
                .arg(visibleText(operand.name, nameUnits), typeWord(variable.type),
                     visibleText(operand.path, nameUnits))};
}

/// What a reference finds; of lists and tables how much there is in them.
QString foundText(const ReferenceFacts &facts)
{
    if (holdsElements(facts.type))
        return previewOf(facts.value, facts.type).detail;
    return valueLine(facts.value.isValid() ? facts.value : emptyValue(facts.type));
}

} // namespace

ReferenceFacts referenceFacts(const OperandText &operand, const TaskState &state)
{
    ReferenceFacts facts;
    const VariableState *const declared = state.variableNamed(operand.name);
    if (!operand.isReference || !declared)
        return facts;
    facts.declared = true;
    facts.variable = declared->variable;
    VariableScope scope;
    scope.declare(operand.name, facts.variable.type, facts.variable.value);
    facts.value = operandValue(operand, scope);
    facts.type = memberType(operand, facts.variable, facts.value);
    return facts;
}

QList<ReferenceChoice> referenceChoices(const TaskState &state)
{
    QList<ReferenceChoice> choices;
    for (const VariableState &variable : state.variables) {
        const QString &name = variable.variable.name;
        const VarType type = variable.variable.type;
        const QString reference = QLatin1Char('$') + name;
        if (name.isEmpty() || readOperand(reference).name != name)
            continue;
        choices.append({reference, type});
        if (type == VarType::List)
            choices.append({reference + QStringLiteral(".Count"), VarType::Int});
        if (type == VarType::Table) {
            choices.append({reference + QStringLiteral(".Rows"), VarType::Int});
            choices.append({reference + QStringLiteral(".Columns"), VarType::Int});
        }
    }
    return choices;
}

Remark remarkOnReference(const OperandText &operand, const ReferenceFacts &facts)
{
    if (!facts.declared) {
        return {Remark::Kind::Error, QCoreApplication::translate("ReferenceFacts", "没有变量“%1”")
                                         .arg(visibleText(operand.name, nameUnits))};
    }
    if (facts.type == VarType::None)
        return remarkOnMissingMember(operand, facts.variable);
    const QString name = visibleText(operand.name, nameUnits);
    if (operand.path.isEmpty()) {
        return {Remark::Kind::Quiet,
                QCoreApplication::translate("ReferenceFacts", "变量 %1（%2）= %3")
                    .arg(name, typeWord(facts.type), foundText(facts))};
    }
    return {Remark::Kind::Quiet,
            QCoreApplication::translate("ReferenceFacts", "变量 %1（%2）的 %3 = %4")
                .arg(name, typeWord(facts.variable.type), visibleText(operand.path, nameUnits),
                     foundText(facts))};
}
