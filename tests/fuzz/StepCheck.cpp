#include "tests/fuzz/StepCheck.h"

#include "tests/fuzz/LiteralStep.h"
#include "tests/support/ListOf.h"
#include "tests/support/Steps.h"

#include "VariableScope.h"

#include <QMetaProperty>
#include <QtDebug>

#include <memory>

namespace {

/// Long enough for every way of searching, short enough for the literal definitions.
constexpr int mostUnits = 900;

VariableScope makeScope(ByteSource &source)
{
    const QString text = source.takeText(mostUnits);
    VariableScope scope;
    scope.declare("s", VarType::String, text);
    scope.declare("part", VarType::String, text.mid(source.takeByte() * 2, source.takeByte() / 3));
    scope.declare("t", VarType::String, source.takeText(40));
    scope.declare("blank", VarType::String, QString(" \t"));
    scope.declare("n", VarType::Int, source.takeByte() - 20);
    scope.declare("d", VarType::Double, source.takeByte() / 8.0 - 3);
    scope.declare("b", VarType::Bool, true);
    scope.declare("list", VarType::List,
                  listOf({text.left(9), 1, listOf({2.5, listOf({}), true})}));
    scope.declare("words", VarType::List, text.left(30).split(" "));
    scope.declare("notAList", VarType::List, 7);
    scope.declare("table", VarType::Table, listOf({listOf({"a", "b"}), listOf({"c"}), 4}));
    scope.declare("strange", static_cast<VarType>(9));
    scope.declare("r", VarType::String, QString("before"));
    scope.declare("$r", VarType::String, QString("before"));
    scope.declare("l", VarType::List, listOf({"before"}));
    return scope;
}

QString takeName(ByteSource &source)
{
    static constexpr const char *names[] = {"r",       "r",  "r", "r",    "r",       "l", "l",
                                            "n",       "d",  "b", "list", "words",   "s", "table",
                                            "strange", "$r", "",  "x",    "notAList"};
    return source.takeOneOf(names);
}

QString takeOperand(ByteSource &source)
{
    static constexpr const char *operands[] = {"$s",
                                               "$s",
                                               "$s",
                                               "$part",
                                               "$part",
                                               "$t",
                                               "$t",
                                               "$blank",
                                               "$n",
                                               "$d",
                                               "$b",
                                               "$list",
                                               "$words",
                                               "$table",
                                               "$none",
                                               "$",
                                               "$.s",
                                               "$s.Count",
                                               "$list.cOunt",
                                               "$table.Rows",
                                               "$table.columns",
                                               "$list.Columns",
                                               "$words.Items",
                                               "$n.x.y",
                                               "",
                                               "0",
                                               "1",
                                               "2",
                                               "-1",
                                               "2.9",
                                               "007",
                                               " 12 ",
                                               "1e3",
                                               "1e400",
                                               "1e-320",
                                               "nan",
                                               "-inf",
                                               "0x10",
                                               "1,000",
                                               "4096",
                                               "2147483647.9",
                                               "-2147483648.5",
                                               "a",
                                               "ß",
                                               "\\n",
                                               "%1",
                                               "，",
                                               " "};
    return source.takeBelow(5) == 0 ? source.takeText(40) : QString(source.takeOneOf(operands));
}

/// No more decimals than `QString::number` can be asked for without a thought.
QString takeDecimals(ByteSource &source)
{
    static constexpr const char *decimals[] = {
        "",   "0",  "1",           "2",     "2.9",   " 3 ", "-1",   "1074",
        "$n", "$d", "$list.Count", "$none", "$list", "x",   "4096", "nan",
        "$b", "1,", "2147483648",  "-inf",  "1e400", "007", "1e3",  "-2147483648.5"};
    return source.takeOneOf(decimals);
}

QVariant takeSetting(ByteSource &source, const QMetaProperty &property)
{
    static constexpr int modes[] = {0, 1, 2, 3, 0, 1, 2, 3, 4, -1, 7, -2147483647 - 1};
    const QByteArray name = property.name();
    if (property.type() == QVariant::Bool)
        return source.takeBool();
    if (property.type() == QVariant::Int)
        return source.takeOneOf(modes);
    if (name.endsWith("Var"))
        return takeName(source);
    return name == "decimals" ? takeDecimals(source) : takeOperand(source);
}

std::unique_ptr<Operation> takeStep(ByteSource &source)
{
    static const auto prototypes = makeAllSteps();
    const std::size_t index = static_cast<std::size_t>(source.takeByte()) % prototypes.size();
    std::unique_ptr<Operation> step(prototypes[index]->clone(nullptr));
    const QMetaObject &type = *step->metaObject();
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        type.property(i).write(step.get(), takeSetting(source, type.property(i)));
    return step;
}

bool isSame(const QVariant &left, const QVariant &right)
{
    const bool areNaN = qIsNaN(left.toDouble()) && qIsNaN(right.toDouble());
    return left.userType() == right.userType() && (areNaN || left == right);
}

/// What differs between the variables of the two scopes, which have the same names.
QString difference(const VariableScope &actual, const VariableScope &expected)
{
    QString text;
    for (const QString &name : expected.names()) {
        const QVariant is = actual.get(name);
        const QVariant shouldBe = expected.get(name);
        if (!isSame(is, shouldBe))
            QDebug(&text) << name << "is" << is << "but should be" << shouldBe;
    }
    return text;
}

QStringList *currentWarnings = nullptr;

void collectWarning(QtMsgType, const QMessageLogContext &, const QString &line)
{
    currentWarnings->append(line);
}

QStringList warningsOf(const Operation &step)
{
    QStringList warnings;
    currentWarnings = &warnings;
    const QtMessageHandler previous = qInstallMessageHandler(collectWarning);
    step.doOperation();
    qInstallMessageHandler(previous);
    return warnings;
}

} // namespace

QString checkStep(ByteSource source)
{
    const std::unique_ptr<Operation> step = takeStep(source);
    VariableScope actual = makeScope(source);
    VariableScope expected = actual;
    step->setVariableScope(&actual);
    const QStringList warnings = warningsOf(*step);
    LiteralStep definition(*step, expected);
    definition.run();

    QString text = difference(actual, expected);
    if (warnings != definition.warnings())
        QDebug(&text) << "logged" << warnings << "but should log" << definition.warnings();
    if (actual.writtenNames() != expected.writtenNames())
        QDebug(&text) << "wrote" << actual.writtenNames() << "not" << expected.writtenNames();
    return text.isEmpty() ? text : step->toString() + ": " + text;
}
