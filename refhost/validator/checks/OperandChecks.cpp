#include "refhost/validator/checks/CheckRows.h"

#include "refhost/validator/trials/OperandTrial.h"
#include "refhost/validator/trials/OperationCheck.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"

namespace {

/// Two operands that stand for the same text and number. "$list" and the like are sample variables,
/// the others those of `operandScope`.
struct EqualOperands
{
    const char *operand;
    const char *equal;
};

const QList<EqualOperands> renderedLists{
    {"$list", "$listText"},
    {"$table", "$tableText"},
    {"$noElements", "$blank"},
};

const QList<EqualOperands> numericLiterals{
    {"007", "$seven"},   {"7.0", "$seven"},      {" 7 ", "$seven"},    {"70e-1", "$seven"},
    {"2.50", "$number"}, {"1,000", "$thousand"}, {"0x10", "$hexText"}, {"7a", "$notANumber"},
};

const QList<EqualOperands> members{
    {"$list.Count", "$five"},
    {"$list.count", "$five"},
    {"$list.Rows", "$five"},
    {"$list.ROWS", "$five"},
    {"$table.Count", "$two"},
    {"$table.Columns", "$count"},
    {"$list.Items", "$list"},
    {"$list.Columns", "$undeclared"},
    {"$noElements.Columns", "$undeclared"},
    {"$list.nothing", "$undeclared"},
    {"$line.Count", "$undeclared"},
};

const QList<EqualOperands> references{
    {"$", "$dollar"},          {"$Line", "$undeclared"}, {"$line ", "$undeclared"},
    {"$ line", "$undeclared"}, {"$.x", "$twin"},         {"$undeclared", "$blank"},
};

/// The sample variables and those of the tables above.
VariableScope operandScope(VarType resultType)
{
    VariableScope scope = sampleScope(resultType);
    const auto text = [&](const char *name, const char *value) {
        scope.declare(QString::fromLatin1(name), VarType::String, QString::fromLatin1(value));
    };
    text("listText", "a, 1, 2.5, true, 1, b, 2.5");
    text("tableText", "1, b, 2.5, c");
    text("thousand", "1,000");
    text("hexText", "0x10");
    text("notANumber", "7a");
    text("dollar", "$");
    text(".x", "One, two");
    text("twin", "One, two");
    scope.declare(QStringLiteral("noElements"), VarType::List, QVariantList());
    scope.declare(QStringLiteral("seven"), VarType::Double, 7.0);
    scope.declare(QStringLiteral("five"), VarType::Int, 5);
    scope.declare(QStringLiteral("two"), VarType::Int, 2);
    return scope;
}

/// Whether the property takes a list as such, and not its text.
bool takesList(const PropertySchema &property)
{
    return property.restriction == QLatin1String("list") ||
           property.restriction == QLatin1String("table");
}

void examineProperty(Specimen &specimen, const PropertySchema &property,
                     const QList<EqualOperands> &pairs)
{
    const VariableScope scope = operandScope(specimen.resultType());
    for (const EqualOperands &pair : pairs) {
        const TrialSetting setting{property.name, QString::fromLatin1(pair.operand)};
        const TrialSetting equal{property.name, QString::fromLatin1(pair.equal)};
        const StepTrial actual = tryOperand(specimen, setting, scope);
        const StepTrial expected = tryOperand(specimen, equal, scope);
        const StepTrial again = tryOperand(specimen, equal, scope);
        // Another check tells of a run that cannot be repeated.
        if (!haveSameResult(actual, expected) && haveSameResult(again, expected)) {
            specimen.fail(QStringLiteral("%1: gives %2; expected %3, as with %4")
                              .arg(setting.toString(), shownResult(actual), shownResult(expected),
                                   equal.toString()));
        }
    }
}

Outcome examineOperands(CheckContext &context, const QList<EqualOperands> &pairs)
{
    return examineOperations(
        context, OperationNeeds::CloneAndResultVariable, [&](Specimen &specimen) {
            for (const PropertySchema &property : specimen.schema().properties()) {
                if (isInput(property) && !isVariableName(property) && !takesList(property))
                    examineProperty(specimen, property, pairs);
            }
        });
}

CheckRow row(const char *id, const char *sentence, Outcome (*run)(CheckContext &))
{
    constexpr int level = 4;
    CheckInfo info;
    info.id = QString::fromLatin1(id);
    info.level = level;
    info.sentence = QString::fromLatin1(sentence);
    info.option = QStringLiteral("operands");
    return {info, run};
}

} // namespace

std::vector<CheckRow> operandChecks()
{
    return {
        row("operands.references", "\"$name\" is the value of that variable, by its exact name.",
            [](CheckContext &context) { return examineOperands(context, references); }),
        row("operands.numbers", "A literal that is parsed as a number is that number.",
            [](CheckContext &context) { return examineOperands(context, numericLiterals); }),
        row("operands.lists", "The text of a list is its elements, separated by \", \".",
            [](CheckContext &context) { return examineOperands(context, renderedLists); }),
        row("operands.members", "Lists have the members Count, Rows, Columns and Items.",
            [](CheckContext &context) { return examineOperands(context, members); }),
    };
}
