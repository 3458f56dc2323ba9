#include "tests/hostile/HostileStep.h"

#include "tests/support/ListOf.h"
#include "tests/support/Steps.h"

#include "VariableScope.h"

#include <QFile>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

namespace {

using Ending = HostileStep::Ending;

constexpr int mebi = 1 << 20;

QString repeated(char unit, int count)
{
    return QString(count, QLatin1Char(unit));
}

/// Variables called "s", "t" and "u", as far as given.
std::function<void(VariableScope &)> texts(const std::function<QString()> &s,
                                           const std::function<QString()> &t = {},
                                           const std::function<QString()> &u = {})
{
    return [=](VariableScope &scope) {
        scope.declare("s", VarType::String, s());
        if (t)
            scope.declare("t", VarType::String, t());
        if (u)
            scope.declare("u", VarType::String, u());
    };
}

std::function<void(VariableScope &)> list(const std::function<QVariantList()> &elements)
{
    return [=](VariableScope &scope) { scope.declare("list", VarType::List, elements()); };
}

std::function<QString()> run(char unit, int count)
{
    return [=] { return repeated(unit, count); };
}

QVariantList nested(int depth)
{
    QVariantList list{QString("x")};
    for (int i = 1; i < depth; ++i)
        list = listOf({QString("y"), list});
    return list;
}

std::function<bool(const QVariant &)> isText(const QString &text)
{
    return [=](const QVariant &value) { return value == QVariant(text); };
}

std::function<bool(const QVariant &)> hasSize(int size)
{
    return [=](const QVariant &value) { return value.toString().size() == size; };
}

std::function<bool(const QVariant &)> isNumber(int number)
{
    return [=](const QVariant &value) { return value == QVariant(number); };
}

const QVariantMap replaceAll{{"sourceText", "$s"}, {"oldText", "$t"}, {"newText", "$u"}};
const QVariantMap find{{"sourceText", "$s"}, {"searchText", "$t"}, {"resultVar", "n"}};
const QVariantMap append{{"sourceText", "$s"}, {"appendText", "$t"}};
const QVariantMap join{{"listVar", "list"}, {"separator", "-"}};

QVariantMap with(QVariantMap settings, const QString &name, const QVariant &value)
{
    settings.insert(name, value);
    return settings;
}

QVariantMap decimals(const QString &count, bool useGrouping = false)
{
    return {{"value", "1234.5"}, {"decimals", count}, {"useGrouping", useGrouping}};
}

std::vector<HostileStep> numberSteps()
{
    const QString type = "text.fromNumber";
    const auto none = [](VariableScope &) {};
    return {
        {"most decimals", type, decimals("2147483647"), Ending::TooLarge, none},
        {"most decimals, grouped", type, decimals("2147483647", true), Ending::TooLarge, none},
        {"two thousand million decimals", type, decimals("2e9"), Ending::TooLarge, none},
        {"decimals beyond the memory", type, decimals("1e9"), Ending::TooLarge, none},
        {"most decimals, from a text", type, decimals("$s"), Ending::TooLarge,
         texts([] { return QString("2147483647"); })},
        {"decimals beyond an int", type, decimals("2147483648"), Ending::Result, none,
         isText("1235")},
        {"decimals of infinity", type, with(decimals("2147483647"), "value", "-inf"),
         Ending::Result, none, isText("-inf")},
        {"a million decimals", type, decimals("1000000"), Ending::Result, none,
         isText("1234.5" + repeated('0', 999999))},
        {"a million decimals, grouped", type, decimals("1000000", true), Ending::Result, none,
         isText("1,234.5" + repeated('0', 999999))},
        {"smallest number", type, with(decimals("5000"), "value", "-5e-324"), Ending::Result, none,
         [](const QVariant &value) {
             return value.toString() == QString::number(-5e-324, 'f', 5000);
         }},
    };
}

std::vector<HostileStep> replaceSteps()
{
    const QString type = "text.replace";
    const auto empty = [] { return QString(); };
    return {
        {"1,024 matches by 3,000,000 units", type, replaceAll, Ending::TooLarge,
         texts(run('a', 1024), run('a', 1), run('b', 3000000))},
        {"70,000 matches by 70,000 units", type, replaceAll, Ending::TooLarge,
         texts(run('a', 70000), run('a', 1), run('b', 70000))},
        {"70,000 matches by 70,000 units, ignoring case", type,
         with(replaceAll, "ignoreCase", true), Ending::TooLarge,
         texts(run('a', 70000), run('A', 1), run('b', 70000))},
        {"one beyond an int", type, replaceAll, Ending::TooLarge,
         texts(run('a', 65536), run('a', 1), run('b', 32768))},
        {"empty search text", type, replaceAll, Ending::TooLarge,
         texts(run('a', 70000), empty, run('b', 70000))},
        {"result beyond the memory", type, replaceAll, Ending::TooLarge,
         texts(run('a', 20000), run('a', 1), run('b', 20000))},
        {"first only, beyond the memory", type, with(replaceAll, "replaceScope", 1),
         Ending::TooLarge, texts(run('a', 64 * mebi), run('a', 1), run('b', 64 * mebi))},
        {"12.8 million dense matches", type, replaceAll, Ending::Result,
         texts([] { return QString("a,").repeated(12800000); }, run(',', 1),
               [] { return QString(", "); }),
         hasSize(3 * 12800000)},
        {"64 million matches of the same length", type, replaceAll, Ending::Result,
         texts(run('a', 64 * mebi), run('a', 1), run('b', 1)), hasSize(64 * mebi)},
        {"nothing by nothing", type, replaceAll, Ending::Result,
         texts(run('a', 144 * mebi), empty, empty), hasSize(144 * mebi)},
        {"made shorter", type, replaceAll, Ending::Result,
         texts(run('a', 16 * mebi), run('a', 2), run('b', 1)), hasSize(8 * mebi)},
    };
}

std::vector<HostileStep> searchSteps()
{
    // By the square these would take hours.
    constexpr int half = mebi / 4;
    const auto odd = [] { return repeated('a', half) + "b" + repeated('a', half); };
    const auto absent = [] { return repeated('a', 20) + "b" + repeated('a', half); };
    const auto endless = run('a', 8 * mebi);
    const QVariantMap findAny = with(find, "ignoreCase", true);
    const QVariantMap between{{"sourceText", "$s"}, {"startMarker", "$t"}, {"cutMode", 1}};
    const QVariantMap split{
        {"sourceText", "$s"}, {"separator", "$t"}, {"splitMode", 1}, {"resultVar", "l"}};
    const auto isOnePiece = [](const QVariant &value) { return value.toList().size() == 1; };
    return {
        {"find the absent", "text.find", find, Ending::Result, texts(endless, absent),
         isNumber(-1)},
        {"find the absent, ignoring case", "text.find", findAny, Ending::Result,
         texts(endless, absent), isNumber(-1)},
        {"find the odd one", "text.find", find, Ending::Result, texts(endless, odd), isNumber(-1)},
        {"find the odd one, ignoring case", "text.find", findAny, Ending::Result,
         texts(endless, odd), isNumber(-1)},
        {"cut at the odd one", "text.between", between, Ending::Result, texts(endless, odd),
         isText("")},
        {"split at the odd one", "text.split", split, Ending::Result, texts(endless, odd),
         isOnePiece},
        {"replace the odd one", "text.replace", replaceAll, Ending::Result,
         texts(endless, odd, run('c', 1)), hasSize(8 * mebi)},
        {"replace the odd one, ignoring case", "text.replace", with(replaceAll, "ignoreCase", true),
         Ending::Result, texts(endless, odd, run('c', 1)), hasSize(8 * mebi)},
        {"letters that grow",
         "text.case",
         {{"sourceText", "$s"}},
         Ending::Result,
         texts([] { return QString(1000000, QChar(0xDF)); }),
         hasSize(2000000)},
    };
}

std::vector<HostileStep> largeTextSteps()
{
    const QVariantMap source{{"sourceText", "$s"}};
    const auto large = texts(run('a', 80 * mebi), run('b', 80 * mebi));
    const auto spaces = texts([] { return " a" + repeated('a', 160 * mebi); });
    const QVariantMap pad{{"sourceText", "$s"}, {"padText", "$t"}};
    const QVariantMap width{{"sourceText", "$s"}, {"width", "1"}, {"resultVar", "l"}};
    const QVariantMap separator{
        {"sourceText", "$s"}, {"splitMode", 1}, {"separator", "a"}, {"resultVar", "l"}};
    return {
        {"append", "text.append", append, Ending::TooLarge, large},
        {"append a text to itself", "text.append", with(append, "appendText", "$s"),
         Ending::TooLarge, large},
        {"pad", "text.pad", pad, Ending::TooLarge, large},
        {"reverse", "text.reverse", source, Ending::TooLarge, spaces},
        {"trim", "text.trim", source, Ending::TooLarge, spaces},
        {"trim everywhere", "text.trim", with(source, "mode", 3), Ending::TooLarge, spaces},
        {"upper case", "text.case", source, Ending::TooLarge, spaces},
        {"capitalised", "text.case", with(source, "mode", 2), Ending::TooLarge,
         texts(run('a', 160 * mebi))},
        {"substring", "text.substring", with(source, "startIndex", "1"), Ending::TooLarge, spaces},
        {"cut",
         "text.between",
         {{"sourceText", "$s"}, {"startMarker", "a"}, {"cutMode", 1}},
         Ending::TooLarge,
         spaces},
        {"split into units", "text.split", width, Ending::TooLarge, texts(run('a', 16 * mebi))},
        {"split into nothings", "text.split", separator, Ending::TooLarge,
         texts(run('a', 32 * mebi))},
        {"digits without end", "text.toNumber", with(source, "resultVar", "n"), Ending::TooLarge,
         texts(run('1', 160 * mebi))},
        {"no number, without end", "text.toNumber", with(source, "resultVar", "n"),
         Ending::TooLarge, texts(run('x', 144 * mebi))},
        {"no number, long", "text.toNumber", with(source, "resultVar", "n"), Ending::Warning,
         texts(run('x', mebi))},
        {"a literal without end",
         "text.reverse",
         {{"sourceText", repeated('z', 144 * mebi)}},
         Ending::TooLarge,
         [](VariableScope &) {}},
        {"decimals that are a text",
         "text.fromNumber",
         {{"value", "$s"}, {"decimals", "$s"}},
         Ending::Warning,
         texts(run('x', mebi))},
    };
}

std::vector<HostileStep> listSteps()
{
    const auto shared = [](int count, int size) {
        return list([=] {
            QVariantList elements;
            const QString text = repeated('a', size);
            for (int i = 0; i < count; ++i)
                elements.append(text);
            return elements;
        });
    };
    const auto inside = [](int count, int size) {
        return list([=] {
            QVariantList row;
            const QString text = repeated('a', size);
            for (int i = 0; i < count; ++i)
                row.append(text);
            return listOf({row});
        });
    };
    const QVariantMap render{{"sourceText", "$list"}, {"appendText", "!"}};
    return {
        {"join beyond an int", "text.join", join, Ending::TooLarge, shared(3000, mebi)},
        {"join beyond the memory", "text.join", join, Ending::TooLarge, shared(300, mebi)},
        {"join one list beyond an int", "text.join", join, Ending::TooLarge, inside(3000, mebi)},
        {"join with a separator beyond an int", "text.join",
         with(join, "separator", repeated('-', mebi)), Ending::TooLarge, shared(3000, 1)},
        {"join one element, with a separator beyond the memory", "text.join",
         with(join, "separator", "$large"), Ending::Result,
         [=](VariableScope &scope) {
             shared(1, 1)(scope);
             scope.declare("large", VarType::String, repeated('-', 144 * mebi));
         },
         isText("a")},
        {"join what is no list, with a separator beyond the memory",
         "text.join",
         {{"listVar", "r"}, {"separator", "$list"}},
         Ending::WarningAndTooLarge,
         shared(3000, mebi)},
        {"render beyond an int", "text.append", render, Ending::TooLarge, shared(3000, mebi)},
        {"render a list nested ten thousand deep", "text.append", render, Ending::Result,
         list([] { return nested(10000); }), isText(QString("y, ").repeated(9999) + "x!")},
        {"join a list nested ten thousand deep", "text.join", join, Ending::Result,
         list([] { return nested(10000); }), isText("y-" + QString("y, ").repeated(9998) + "x")},
    };
}

QStringList warnings;

void collectWarning(QtMsgType, const QMessageLogContext &, const QString &line)
{
    warnings.append(line.size() < 200 ? line : line.left(200) + "...");
}

/// The address space this process has taken, in bytes.
rlim_t addressSpace()
{
    QFile file("/proc/self/statm");
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    return file.readAll().split(' ').first().toULong() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// Lets this process take no more than 256 MiB on top of what it has taken.
void limitMemory()
{
    const rlim_t bytes = addressSpace() + 256 * static_cast<rlim_t>(mebi);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_AS, &limit);
}

QString tooLargeLine(const Operation &step)
{
    QString name = step.metaObject()->className();
    name.chop(int(qstrlen("Operation")));
    return "[" + name + "] 结果过大，已跳过";
}

/// What is wrong with how the step ended; a scope that knows what was written tells of changes.
QString judge(const HostileStep &hostile, const Operation &step, const VariableScope &scope)
{
    if (hostile.ending == Ending::Result) {
        const QString name = step.property("resultVar").toString();
        if (!warnings.isEmpty())
            return "has logged " + warnings.join(" / ");
        return hostile.isRight(scope.get(name)) ? QString() : QString("gives a wrong result");
    }
    if (!scope.writtenNames().isEmpty())
        return "has written " + scope.writtenNames().join(", ");
    const bool isTooLarge = hostile.ending != Ending::Warning;
    const int expected = hostile.ending == Ending::WarningAndTooLarge ? 2 : 1;
    const bool isRight = warnings.size() == expected &&
                         (warnings.last() == tooLargeLine(step)) == isTooLarge &&
                         warnings.count(tooLargeLine(step)) == int(isTooLarge);
    return isRight ? QString()
                   : QString("has logged %1 lines: ").arg(warnings.size()) + warnings.join(" / ");
}

} // namespace

std::vector<HostileStep> hostileSteps()
{
    std::vector<HostileStep> all;
    for (auto *steps : {numberSteps, replaceSteps, searchSteps, largeTextSteps, listSteps}) {
        for (HostileStep &step : steps())
            all.push_back(std::move(step));
    }
    return all;
}

QString runHostileStep(const QByteArray &name)
{
    const std::vector<HostileStep> all = hostileSteps();
    const auto hostile = std::find_if(all.cbegin(), all.cend(),
                                      [&](const HostileStep &step) { return step.name == name; });
    if (hostile == all.cend())
        return "is not known";
    const std::unique_ptr<Operation> step = makeStep(hostile->typeId, hostile->settings);
    VariableScope scope;
    scope.declare("r", VarType::String, QString("before"));
    scope.declare("l", VarType::List);
    scope.declare("n", VarType::Int);
    hostile->declare(scope);
    limitMemory();
    step->setVariableScope(&scope);
    qInstallMessageHandler(collectWarning);
    step->doOperation();
    qInstallMessageHandler(nullptr);
    return judge(*hostile, *step, scope);
}
