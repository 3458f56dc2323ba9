#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "operations/common/Operand.h"
#include "operations/common/ValueText.h"
#include "refhost/engine/OperandText.h"

#include "VariableScope.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/// A QObject as a host could put it into a variable.
class Page : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title)

public:
    QString title() const { return "报告"; }
};

/// The same type and the same value; one NaN is like the other.
bool same(const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    if (left.userType() == QMetaType::Double && std::isnan(left.toDouble()))
        return std::isnan(right.toDouble());
    return left == right;
}

VariableScope sampleScope()
{
    static Page page;
    VariableScope scope;
    scope.declare("a", VarType::String, "text");
    scope.declare("b", VarType::Int, 12);
    scope.declare("c", VarType::Double, 2.5);
    scope.declare("1", VarType::Bool, true);
    scope.declare(" ", VarType::String, " 12.5 ");
    scope.declare("a b", VarType::List, listOf({"a", 1, true}));
    scope.declare("ab", VarType::List, QStringList({"x", "y"}));
    scope.declare("ba", VarType::List);
    scope.declare("aa", VarType::Table, listOf({listOf({1, 2, 3}), listOf({4}), "no row"}));
    scope.declare("bb", VarType::Table, listOf({"a", "b"}));
    scope.declare(".a", VarType::String, "1e400");
    scope.declare("$a", VarType::String, "dollar");
    scope.declare("变", VarType::List, QVariant::fromValue<QObject *>(&page));
    return scope;
}

/// A text of pieces that mean something to an operand, and of some that do not.
QString randomText(QRandomGenerator &random)
{
    static const QStringList pieces{"$",     "$",     ".",         "a",   "b",   "c",     "1",
                                    "0",     " ",     "ab",        "aa",  "变",  "Rows",  "columns",
                                    "COUNT", "Items", "-",         "e",   "1e3", "title", "007",
                                    "inf",   "nan",   "1,0",       "0x1", "\n",  "$a b",  "$aa.",
                                    "$ab.",  "$bb.C", "$变.title", "+5",  "٣"};
    QString text;
    for (int i = random.bounded(5); i >= 0; --i)
        text += pieces.at(random.bounded(pieces.size()));
    return text.mid(random.bounded(2));
}

QVariant randomValue(QRandomGenerator &random, int depth)
{
    switch (random.bounded(depth > 0 ? 11 : 9)) {
    case 0:
        return {};
    case 1:
        return random.bounded(-1000, 1000);
    case 2:
        return random.generateDouble() * std::pow(10.0, random.bounded(-320, 309));
    case 3:
        return random.bounded(2) == 1;
    case 4:
        return static_cast<qlonglong>(random.generate64());
    case 5:
        return std::numeric_limits<double>::quiet_NaN();
    case 6:
        return QStringList{randomText(random), randomText(random)};
    case 7:
        return QVariantList();
    case 8:
        return randomText(random);
    default:
        QVariantList list;
        for (int i = random.bounded(4); i >= 0; --i)
            list.append(randomValue(random, depth - 1));
        return list;
    }
}

} // namespace

/// The host's reading of operands is the one of the operations.
class OperandTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void readsRandomTexts();
    void rendersValues_data();
    void rendersValues();
    void rendersRandomValues();
    void deepLists();

private:
    static bool agree(const QString &text, VariableScope scope);
    static bool agree(const QVariant &value);
};

bool OperandTextTest::agree(const QString &text, VariableScope scope)
{
    const OperandText operand = readOperand(text);
    const OperandRef expected = parseOperand(text);
    const bool taken = operand.isReference == expected.isVariable &&
                       operand.name == expected.name && operand.path == expected.path &&
                       operand.literal == expected.literal;
    bool isNumber = false;
    const double number = resolveNumberOperand(&scope, text, &isNumber);
    const QVariant value = operandValue(operand, scope);
    const auto found = numberInValue(value);
    return taken && same(value, resolveOperand(expected, &scope)) &&
           textOfValue(value) == resolveTextOperand(text, &scope) &&
           found.has_value() == isNumber && (!found || same(*found, number));
}

bool OperandTextTest::agree(const QVariant &value)
{
    VariableScope scope;
    scope.declare("value", VarType::List, value);
    return textOfValue(value) == variantToText(value) && agree(QStringLiteral("$value"), scope) &&
           agree(QStringLiteral("$value.Columns"), scope);
}

void OperandTextTest::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name"); // null for a literal
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");

    const auto literal = [](const char *row, const char *text, const QVariant &value) {
        QTest::newRow(row) << text << QString() << QString() << value;
    };
    const auto reference = [](const char *text, const char *name, const char *path,
                              const QVariant &value) {
        QTest::newRow(text) << text << name << path << value;
    };
    literal("empty", "", "");
    literal("dollar alone", "$", "$");
    literal("text", "line", "line");
    literal("dollar later", "a$b", "a$b");
    literal("space before the dollar", " $a", " $a");
    literal("zeros", "007", 7.0);
    literal("fraction", "1.50", 1.5);
    literal("spaces", " 12 ", 12.0);
    literal("exponent", "1e3", 1000.0);
    literal("group separator", "1,000", "1,000");
    literal("hexadecimal", "0x10", "0x10");
    literal("digits and letters", "12a", "12a");
    literal("infinite", "inf", std::numeric_limits<double>::infinity());
    literal("no number", "nan", std::numeric_limits<double>::quiet_NaN());
    literal("too large", "1e400", "1e400");
    reference("$a", "a", "", "text");
    reference("$a.", "a", "", "text");
    reference("$.a", ".a", "", "1e400");
    reference("$.", ".", "", {});
    reference("$$a", "$a", "", "dollar");
    reference("$A", "A", "", {});
    reference("$a ", "a ", "", {});
    reference("$a.Count", "a", "Count", {});
    reference("$a b.count", "a b", "count", 3);
    reference("$ab.ROWS", "ab", "ROWS", 2);
    reference("$ba.Count", "ba", "Count", 0);
    reference("$ba.Columns", "ba", "Columns", {});
    reference("$aa.Columns", "aa", "Columns", 3);
    reference("$bb.Columns", "bb", "Columns", {});
    reference("$bb.Items", "bb", "Items", listOf({"a", "b"}));
    reference("$aa.Rows.Count", "aa", "Rows.Count", {});
    reference("$变.title", "变", "title", "报告");
    reference("$变.Count", "变", "Count", {});
}

void OperandTextTest::reads()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    const OperandText operand = readOperand(text);
    QCOMPARE(operand.isReference, !name.isNull());
    QCOMPARE(operand.name, name);
    QTEST(operand.path, "path");
    QCOMPARE(operand.literal, name.isNull() ? text : QString());
    const QVariant found = operandValue(operand, sampleScope());
    QVERIFY2(same(found, value), qPrintable(found.toString()));
    QVERIFY(agree(text, sampleScope()));
}

void OperandTextTest::readsRandomTexts()
{
    QRandomGenerator random(20210407);
    const VariableScope scope = sampleScope();
    int references = 0;
    int found = 0;
    for (int i = 0; i < 40000; ++i) {
        const QString text = randomText(random);
        QVERIFY2(agree(text, scope), qPrintable(text));
        const OperandText operand = readOperand(text);
        references += operand.isReference ? 1 : 0;
        found += operand.isReference && operandValue(operand, scope).isValid() ? 1 : 0;
    }
    QVERIFY2(references > 2000, qPrintable(QString::number(references)));
    QVERIFY2(found > 500, qPrintable(QString::number(found)));
}

void OperandTextTest::rendersValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QVariant() << "";
    QTest::newRow("text") << QVariant("a") << "a";
    QTest::newRow("number") << QVariant(0.1) << "0.1";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "";
    QTest::newRow("list") << QVariant(listOf({"a", 1.5, false})) << "a, 1.5, false";
    QTest::newRow("lists in a list")
        << QVariant(listOf({listOf({1, listOf({2, 3})}), "x"})) << "1, 2, 3, x";
    QTest::newRow("empty list last") << QVariant(listOf({"a", QVariantList()})) << "a, ";
    QTest::newRow("empty list first") << QVariant(listOf({QVariantList(), "a"})) << ", a";
    QTest::newRow("nothing within") << QVariant(listOf({"a", QVariant(), "b"})) << "a, , b";
    QTest::newRow("strings") << QVariant(QStringList{"a", "b"}) << "a, b";
}

void OperandTextTest::rendersValues()
{
    QFETCH(QVariant, value);
    QTEST(textOfValue(value), "text");
    QVERIFY(agree(value));
}

void OperandTextTest::rendersRandomValues()
{
    QRandomGenerator random(20210408);
    for (int i = 0; i < 10000; ++i) {
        const QVariant value = randomValue(random, 3);
        QVERIFY2(agree(value), qPrintable(textOfValue(value)));
    }
}

void OperandTextTest::deepLists()
{
    QVariant value = "x";
    for (int depth = 0; depth < 2000; ++depth)
        value = listOf({value});
    QCOMPARE(textOfValue(value), QString("x"));
    QVERIFY(agree(value));
}

QTEST_GUILESS_MAIN(OperandTextTest)

#include "OperandTextTest.moc"
