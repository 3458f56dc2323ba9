#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "operations/common/Operand.h"
#include "operations/common/ValueText.h"

#include "VariableScope.h"

#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

namespace {

/// A QObject as a host could put it into a variable.
class Document : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title)
    Q_PROPERTY(QVariant nothing READ nothing)

public:
    QString title() const { return "报告"; }
    QVariant nothing() const { return {}; }
};

VariableScope sampleScope()
{
    VariableScope scope;
    scope.declare("s", VarType::String, "text");
    scope.declare("i", VarType::Int, 12);
    scope.declare("d", VarType::Double, 2.5);
    scope.declare("yes", VarType::Bool, true);
    scope.declare("no", VarType::Bool, false);
    scope.declare("digits", VarType::String, " 12.5 ");
    scope.declare("words", VarType::String, "twelve");
    scope.declare("list", VarType::List, listOf({"a", 1, true}));
    scope.declare("strings", VarType::List, QStringList({"x", "y"}));
    scope.declare("empty", VarType::List);
    scope.declare("table", VarType::Table, listOf({listOf({1, 2, 3}), listOf({4}), "not a row"}));
    scope.declare("flat", VarType::Table, listOf({"a", "b"}));
    scope.declare(".x", VarType::String, "dotted");
    scope.declare("a b", VarType::String, "spaced");
    scope.set("i", 12);
    return scope;
}

} // namespace

class OperandTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultRef();
    void parse_data();
    void parse();
    void literals_data();
    void literals();
    void references_data();
    void references();
    void listMembers();
    void objectMembers();
    void withoutScope();
    void numbers_data();
    void numbers();
    void numberWithoutFlag();
    void integers_data();
    void integers();
};

void OperandTest::defaultRef()
{
    const OperandRef ref;
    QVERIFY(!ref.isVariable);
    QCOMPARE(ref.name, QString());
    QCOMPARE(ref.path, QString());
    QCOMPARE(ref.literal, QString());
}

void OperandTest::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isVariable");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << "" << false << ""
                           << "";
    QTest::newRow("null") << QString() << false << ""
                          << "";
    QTest::newRow("dollar alone") << "$" << false << ""
                                  << "";
    QTest::newRow("literal") << "abc" << false << ""
                             << "";
    QTest::newRow("dollar later") << "a$b" << false << ""
                                  << "";
    QTest::newRow("space before dollar") << " $a" << false << ""
                                         << "";
    QTest::newRow("full-width dollar") << "＄a" << false << ""
                                       << "";
    QTest::newRow("variable") << "$a" << true << "a"
                              << "";
    QTest::newRow("path") << "$a.x" << true << "a"
                          << "x";
    QTest::newRow("long path") << "$a.x.y" << true << "a"
                               << "x.y";
    QTest::newRow("dot first") << "$.x" << true << ".x"
                               << "";
    QTest::newRow("dot first, dot later") << "$.x.y" << true << ".x.y"
                                          << "";
    QTest::newRow("dot only") << "$." << true << "."
                              << "";
    QTest::newRow("empty path") << "$a." << true << "a"
                                << "";
    QTest::newRow("two dollars") << "$$" << true << "$"
                                 << "";
    QTest::newRow("case and spaces") << "$ A b . C " << true << " A b "
                                     << " C ";
    QTest::newRow("braces") << "${a}" << true << "{a}"
                            << "";
    QTest::newRow("chinese") << "$姓名.Count" << true << "姓名"
                             << "Count";
    QTest::newRow("beyond the BMP") << "$\U0001F600.x" << true << "\U0001F600"
                                    << "x";
    QTest::newRow("lone surrogate")
        << QString("$") + QChar(0xD800) << true << QString(QChar(0xD800)) << "";
}

void OperandTest::parse()
{
    QFETCH(QString, text);
    QFETCH(bool, isVariable);
    QFETCH(QString, name);
    QFETCH(QString, path);
    const OperandRef ref = parseOperand(text);
    QCOMPARE(ref.isVariable, isVariable);
    QCOMPARE(ref.name, name);
    QCOMPARE(ref.path, path);
    QCOMPARE(ref.literal, isVariable ? QString() : text);
}

void OperandTest::literals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<QString>("rendered");

    QTest::newRow("zeros in front") << "007" << true << "7";
    QTest::newRow("zeros behind") << "1.50" << true << "1.5";
    QTest::newRow("spaces around a number") << "  12 " << true << "12";
    QTest::newRow("sign") << "+5" << true << "5";
    QTest::newRow("negative zero") << "-0" << true << "0";
    QTest::newRow("exponent") << "1e3" << true << "1000";
    QTest::newRow("million") << "1000000" << true << "1e+06";
    QTest::newRow("infinite") << "inf" << true << "inf";
    QTest::newRow("not a number") << "nan" << true << "nan";
    QTest::newRow("group separator") << "1,000" << false << "1,000";
    QTest::newRow("hexadecimal") << "0x10" << false << "0x10";
    QTest::newRow("letter behind") << "12a" << false << "12a";
    QTest::newRow("text") << "abc" << false << "abc";
    QTest::newRow("spaces around a text") << "  x " << false << "  x ";
    QTest::newRow("empty") << "" << false << "";
    QTest::newRow("space") << " " << false << " ";
    QTest::newRow("dollar") << "$" << false << "$";
    QTest::newRow("backslash n") << "\\n" << false << "\\n";
    QTest::newRow("full-width digits") << "１２" << false << "１２";
}

void OperandTest::literals()
{
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    QFETCH(QString, rendered);
    const QVariant value = resolveOperand(parseOperand(text), nullptr);
    QCOMPARE(value.userType(), isNumber ? int(QMetaType::Double) : int(QMetaType::QString));
    QCOMPARE(variantToText(value), rendered);
    QCOMPARE(resolveTextOperand(text, nullptr), rendered);
}

void OperandTest::references_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("rendered");

    QTest::newRow("string") << "$s" << QVariant("text") << "text";
    QTest::newRow("number-like string stays text") << "$digits" << QVariant(" 12.5 ") << " 12.5 ";
    QTest::newRow("int") << "$i" << QVariant(12) << "12";
    QTest::newRow("double") << "$d" << QVariant(2.5) << "2.5";
    QTest::newRow("bool") << "$yes" << QVariant(true) << "true";
    QTest::newRow("undeclared") << "$missing" << QVariant() << "";
    QTest::newRow("dotted name") << "$.x" << QVariant("dotted") << "dotted";
    QTest::newRow("spaced name") << "$a b" << QVariant("spaced") << "spaced";
    QTest::newRow("case of the name") << "$S" << QVariant() << "";
    QTest::newRow("list") << "$list" << QVariant(listOf({"a", 1, true})) << "a, 1, true";
    QTest::newRow("empty path") << "$s." << QVariant("text") << "text";
    QTest::newRow("rows") << "$list.Rows" << QVariant(3) << "3";
    QTest::newRow("rows, lower case") << "$table.rows" << QVariant(3) << "3";
    QTest::newRow("rows, upper case") << "$table.ROWS" << QVariant(3) << "3";
    QTest::newRow("count") << "$table.Count" << QVariant(3) << "3";
    QTest::newRow("count of strings") << "$strings.count" << QVariant(2) << "2";
    QTest::newRow("count of nothing") << "$empty.Count" << QVariant(0) << "0";
    QTest::newRow("columns") << "$table.Columns" << QVariant(3) << "3";
    QTest::newRow("columns of nothing") << "$empty.Columns" << QVariant() << "";
    QTest::newRow("columns of no table") << "$flat.columns" << QVariant() << "";
    QTest::newRow("items") << "$list.Items" << QVariant(listOf({"a", 1, true})) << "a, 1, true";
    QTest::newRow("items of strings stay strings")
        << "$strings.items" << QVariant(QStringList({"x", "y"})) << "x, y";
    QTest::newRow("unknown member") << "$list.Length" << QVariant() << "";
    QTest::newRow("member of a member") << "$list.Items.Count" << QVariant() << "";
    QTest::newRow("member of a string") << "$s.Count" << QVariant() << "";
    QTest::newRow("member of a number") << "$i.Count" << QVariant() << "";
    QTest::newRow("member of nothing") << "$missing.Count" << QVariant() << "";
    QTest::newRow("space in the member") << "$list. Count" << QVariant() << "";
}

void OperandTest::references()
{
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    QFETCH(QString, rendered);
    VariableScope scope = sampleScope();
    const QVariant actual = resolveOperand(parseOperand(text), &scope);
    QCOMPARE(actual, value);
    QCOMPARE(actual.userType(), value.userType());
    QCOMPARE(resolveTextOperand(text, &scope), rendered);
}

void OperandTest::listMembers()
{
    VariableScope scope;
    scope.declare("v", VarType::Table,
                  listOf({listOf({}), listOf({1}), 5, QStringList({"a", "b"})}));
    QCOMPARE(resolveOperand(parseOperand("$v.Columns"), &scope), QVariant(2));
    scope.set("v", listOf({listOf({})}));
    QCOMPARE(resolveOperand(parseOperand("$v.Columns"), &scope), QVariant(0));
    scope.set("v", QVariant::fromValue(QList<int>({1, 2, 3})));
    QCOMPARE(resolveOperand(parseOperand("$v.Count"), &scope), QVariant(3));
    QCOMPARE(resolveTextOperand("$v", &scope), QString("1, 2, 3"));
}

void OperandTest::objectMembers()
{
    Document document;
    document.setProperty("dynamic", 5);
    document.setProperty("页数", 12);
    VariableScope scope;
    scope.declare("doc", VarType::String, QVariant::fromValue(&document));
    QCOMPARE(resolveOperand(parseOperand("$doc.title"), &scope), QVariant("报告"));
    QCOMPARE(resolveOperand(parseOperand("$doc.dynamic"), &scope), QVariant(5));
    QCOMPARE(resolveOperand(parseOperand("$doc.页数"), &scope), QVariant(12));
    QVERIFY(!resolveOperand(parseOperand("$doc.Title"), &scope).isValid());
    QVERIFY(!resolveOperand(parseOperand("$doc.nothing"), &scope).isValid());
    QVERIFY(!resolveOperand(parseOperand("$doc.title.more"), &scope).isValid());

    scope.set("doc", QVariant::fromValue<QObject *>(nullptr));
    QVERIFY(!resolveOperand(parseOperand("$doc.title"), &scope).isValid());
}

void OperandTest::withoutScope()
{
    QVERIFY(!resolveOperand(parseOperand("$s"), nullptr).isValid());
    QVERIFY(!resolveOperand(parseOperand("$s.Count"), nullptr).isValid());
    QCOMPARE(resolveTextOperand("$s", nullptr), QString());
}

void OperandTest::numbers_data()
{
    QTest::addColumn<QString>("operand");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("number");

    QTest::newRow("literal") << "12" << true << 12.0;
    QTest::newRow("literal with spaces") << " -2.5 " << true << -2.5;
    QTest::newRow("infinite") << "-inf" << true << -std::numeric_limits<double>::infinity();
    QTest::newRow("text") << "abc" << false << 0.0;
    QTest::newRow("beyond the range") << "1e999" << false << 0.0;
    QTest::newRow("empty") << "" << false << 0.0;
    QTest::newRow("dollar") << "$" << false << 0.0;
    QTest::newRow("group separator") << "1,234" << false << 0.0;
    QTest::newRow("int variable") << "$i" << true << 12.0;
    QTest::newRow("double variable") << "$d" << true << 2.5;
    QTest::newRow("true") << "$yes" << true << 1.0;
    QTest::newRow("false") << "$no" << true << 0.0;
    QTest::newRow("string variable, number") << "$digits" << true << 12.5;
    QTest::newRow("string variable, words") << "$words" << false << 0.0;
    QTest::newRow("list variable") << "$list" << false << 0.0;
    QTest::newRow("count of a list") << "$list.Count" << true << 3.0;
    QTest::newRow("undeclared") << "$missing" << false << 0.0;
    QTest::newRow("unknown member") << "$list.x" << false << 0.0;
}

void OperandTest::numbers()
{
    QFETCH(QString, operand);
    QFETCH(bool, ok);
    QFETCH(double, number);
    VariableScope scope = sampleScope();
    bool actualOk = !ok;
    QCOMPARE(resolveNumberOperand(&scope, operand, &actualOk), number);
    QCOMPARE(actualOk, ok);
}

void OperandTest::numberWithoutFlag()
{
    VariableScope scope = sampleScope();
    QCOMPARE(resolveNumberOperand(&scope, "$i", nullptr), 12.0);
    QCOMPARE(resolveNumberOperand(&scope, "abc", nullptr), 0.0);
    QCOMPARE(resolveNumberOperand(nullptr, "$i", nullptr), 0.0);
    QVERIFY(std::isnan(resolveNumberOperand(nullptr, "nan", nullptr)));
}

void OperandTest::integers_data()
{
    QTest::addColumn<QString>("operand");
    QTest::addColumn<int>("expected");
    QTest::newRow("whole") << "5" << 5;
    QTest::newRow("fraction") << "2.9" << 2;
    QTest::newRow("too large") << "1e10" << INT_MIN;
    QTest::newRow("text") << "abc" << 77;
    QTest::newRow("empty") << "" << 77;
    QTest::newRow("undeclared") << "$missing" << 77;
    QTest::newRow("list") << "$list" << 77;
    QTest::newRow("variable") << "$d" << 2;
}

void OperandTest::integers()
{
    QFETCH(QString, operand);
    QFETCH(int, expected);
    VariableScope scope = sampleScope();
    QCOMPARE(resolveIntOperand(&scope, operand, 77), expected);
}

QTEST_GUILESS_MAIN(OperandTest)

#include "OperandTest.moc"
