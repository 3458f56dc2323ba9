#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "operations/common/ValueConversion.h"

#include <QDate>
#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

class ValueConversionTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data();
    void converts();
    void fails_data();
    void fails();
    void okMayBeLeftOut();
    void boolWords_data();
    void boolWords();
    void bracketLists_data();
    void bracketLists();
    void jsonTables_data();
    void jsonTables();
};

namespace {

using List = QVariantList;

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

void ValueConversionTest::converts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected");

    const auto row = [](const char *name, int type, const QVariant &value,
                        const QVariant &expected) {
        QTest::newRow(name) << type << value << expected;
    };

    // Empty values become the type's own, whatever they are.
    const QVariant empties[] = {0, 0.0, QString(), false, List(), List()};
    for (int type = 1; type <= 6; ++type) {
        QTest::addRow("invalid to type %d", type) << type << QVariant() << empties[type - 1];
        QTest::addRow("null text to type %d", type)
            << type << QVariant(QString()) << empties[type - 1];
        QTest::addRow("empty text to type %d", type) << type << QVariant("") << empties[type - 1];
        QTest::addRow("null date to type %d", type)
            << type << QVariant(QDate()) << empties[type - 1];
    }
    row("invalid to no type", 0, QVariant(), QVariant());
    row("empty text to an unknown type", 7, "", QVariant());

    row("double to int, half up", 1, 2.5, 3);
    row("double to int, up", 1, 3.7, 4);
    row("double to int, down", 1, -3.7, -4);
    row("long to int", 1, 5LL, 5);
    row("int to int", 1, -5, -5);
    row("true to int", 1, true, 1);
    row("false to int", 1, false, 0);
    row("text to int", 1, "42", 42);
    row("text with blanks to int", 1, " 42 ", 42);
    row("text with a fraction to int", 1, "2.5", 2);
    row("negative text with a fraction to int", 1, "-3.7", -3);
    row("text with an exponent to int", 1, "1e3", 1000);
    row("zeros in front are no octal number", 1, "010", 10);
    row("large text to int", 1, "1e10", INT_MIN);
    row("text beyond int by one", 1, "2147483648", INT_MIN);
    row("infinite text to int", 1, "inf", INT_MIN);
    row("nan text to int", 1, "nan", INT_MIN);

    row("int to double", 2, 3, 3.0);
    row("double to double", 2, -0.5, -0.5);
    row("infinite to double", 2, infinity, infinity);
    row("true to double", 2, true, 1.0);
    row("false to double", 2, false, 0.0);
    row("text to double", 2, " 1.5e3 ", 1500.0);

    row("text to text", 3, " a ", " a ");
    row("whole double to text", 3, 4.0, QString("4"));
    row("tenth to text", 3, 0.1, QString("0.1"));
    row("int to text", 3, -7, QString("-7"));
    row("bool to text", 3, true, QString("true"));
    row("date to text", 3, QDate(2024, 2, 29), QString("2024-02-29"));
    row("strings to text", 3, QStringList({"a"}), QString("a"));

    row("bool to bool", 4, true, true);
    row("zero to bool", 4, 0.0, false);
    row("negative zero to bool", 4, -0.0, false);
    row("number to bool", 4, 0.001, true);
    row("nan to bool", 4, std::nan(""), true);
    row("int to bool", 4, -1, true);
    row("word to bool", 4, " YES ", true);
    row("chinese word to bool", 4, "否", false);
    row("blank to bool", 4, " ", false);

    row("list to list", 5, listOf({1, "a"}), listOf({1, "a"}));
    row("empty list to list", 5, List(), List());
    row("strings to list stay strings", 5, QStringList({"a"}), QStringList({"a"}));
    row("text to list", 5, "[1, x, , 2.5]", listOf({1.0, "x", 2.5}));
    row("empty brackets to list", 5, "[]", List());

    row("table to table", 6, listOf({listOf({1}), listOf({2})}),
        listOf({listOf({1}), listOf({2})}));
    row("only the first row counts", 6, listOf({listOf({1}), 2}), listOf({listOf({1}), 2}));
    row("list to a table of one row", 6, listOf({1, 2}), listOf({listOf({1, 2})}));
    row("a row further down is no table", 6, listOf({1, listOf({2})}),
        listOf({listOf({1, listOf({2})})}));
    row("empty list to a table of one empty row", 6, List(), listOf({List()}));
    row("text to table", 6, R"([["a","b"],[1]])", listOf({listOf({"a", "b"}), listOf({""})}));
    row("words to table", 6, "a,b", List());
    row("number to table", 6, 5.0, List());
    row("bool to table", 6, true, List());
    row("strings to table", 6, QStringList({"a"}), List());

    row("number to no type", 0, 5.0, 5.0);
    row("number to an unknown type", 7, 5.0, 5.0);
    row("list to an unknown type", 99, listOf({1}), listOf({1}));
}

void ValueConversionTest::converts()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QVariant, expected);
    bool ok = false;
    const QVariant actual = convertToVarType(value, static_cast<VarType>(type), &ok);
    QVERIFY(ok);
    QCOMPARE(actual, expected);
    QCOMPARE(actual.userType(), expected.userType());
}

void ValueConversionTest::fails_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("words to int") << 1 << QVariant("abc") << QVariant(0);
    QTest::newRow("hexadecimal to int") << 1 << QVariant("0x10") << QVariant(0);
    QTest::newRow("group separators to int") << 1 << QVariant("1,000") << QVariant(0);
    QTest::newRow("blank to int") << 1 << QVariant(" ") << QVariant(0);
    QTest::newRow("list to int") << 1 << QVariant(listOf({1})) << QVariant(0);
    QTest::newRow("date to int") << 1 << QVariant(QDate(2024, 1, 1)) << QVariant(0);
    QTest::newRow("text beyond the range to double") << 2 << QVariant("1e999") << QVariant(0.0);
    QTest::newRow("words to double") << 2 << QVariant("abc") << QVariant(0.0);
    QTest::newRow("list to double") << 2 << QVariant(listOf({1})) << QVariant(0.0);
    QTest::newRow("list to text") << 3 << QVariant(listOf({"a"})) << QVariant(QString());
    QTest::newRow("empty list to text") << 3 << QVariant(List()) << QVariant(QString());
    QTest::newRow("words to bool") << 4 << QVariant("perhaps") << QVariant(false);
    QTest::newRow("two to bool") << 4 << QVariant("2") << QVariant(false);
    QTest::newRow("list to bool") << 4 << QVariant(listOf({true})) << QVariant(false);
    QTest::newRow("number to list") << 5 << QVariant(5.0) << QVariant(List());
    QTest::newRow("words to list") << 5 << QVariant("a,b") << QVariant(List());
    QTest::newRow("open bracket to list") << 5 << QVariant("[1, 2") << QVariant(List());
    QTest::newRow("blank before the bracket") << 5 << QVariant(" [1]") << QVariant(List());
}

void ValueConversionTest::fails()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QVariant, expected);
    bool ok = true;
    const QVariant actual = convertToVarType(value, static_cast<VarType>(type), &ok);
    QVERIFY(!ok);
    QCOMPARE(actual, expected);
    QCOMPARE(actual.userType(), expected.userType());
}

void ValueConversionTest::okMayBeLeftOut()
{
    QCOMPARE(convertToVarType(2.5, VarType::Int, nullptr), QVariant(3));
    QCOMPARE(convertToVarType("x", VarType::Int, nullptr), QVariant(0));
}

void ValueConversionTest::boolWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("known");
    QTest::addColumn<bool>("value");
    for (const char *word : {"true", "1", "yes", "是", "y", "TRUE", " Yes\n", "Y"})
        QTest::newRow(word) << word << true << true;
    for (const char *word : {"false", "0", "no", "否", "n", "No", " FALSE "})
        QTest::newRow(word) << word << true << false;
    QTest::newRow("empty") << "" << true << false;
    QTest::newRow("blank") << " \t" << true << false;
    for (const char *word : {"2", "0.0", "-1", "on", "truee", "t", "真", "是的"})
        QTest::newRow(word) << word << false << false;
}

void ValueConversionTest::boolWords()
{
    QFETCH(QString, text);
    QFETCH(bool, known);
    QFETCH(bool, value);
    for (const bool before : {false, true}) {
        bool actual = before;
        QCOMPARE(parseBoolText(text, &actual), known);
        QCOMPARE(actual, known ? value : before);
    }
}

void ValueConversionTest::bracketLists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QVariantList>("expected");
    QTest::newRow("mixed") << "[1, x, , 2.5]" << true << listOf({1.0, "x", 2.5});
    QTest::newRow("empty") << "[]" << true << List();
    QTest::newRow("blank") << "[ ]" << true << List();
    QTest::newRow("only commas") << "[ , ]" << true << List();
    QTest::newRow("blanks around") << "  [a]\n" << true << listOf({"a"});
    QTest::newRow("quotes stay") << "[\"a\", 'b']" << true << listOf({"\"a\"", "'b'"});
    QTest::newRow("nested brackets are text") << "[[1], 2]" << true << listOf({"[1]", 2.0});
    QTest::newRow("inner blanks stay") << "[ a b , c ]" << true << listOf({"a b", "c"});
    QTest::newRow("full-width comma") << "[a，b]" << true << listOf({"a，b"});
    QTest::newRow("not closed") << "[1, 2" << false << List();
    QTest::newRow("not opened") << "1, 2]" << false << List();
    QTest::newRow("bracket alone") << "[" << false << List();
    QTest::newRow("empty text") << "" << false << List();
    QTest::newRow("no brackets") << "1" << false << List();
}

void ValueConversionTest::bracketLists()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(QVariantList, expected);
    const List untouched{"before"};
    List list = untouched;
    QCOMPARE(parseBracketList(text, &list), ok);
    QCOMPARE(list, ok ? expected : untouched);
    for (int i = 0; ok && i < list.size(); ++i)
        QCOMPARE(list.at(i).userType(), expected.at(i).userType());
}

void ValueConversionTest::jsonTables_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariantList>("expected");
    QTest::newRow("two rows") << R"([["a","b"],[1]])" << listOf({listOf({"a", "b"}), listOf({""})});
    QTest::newRow("no cell but strings")
        << R"([["x", 1, true, null, ["y"], {}]])" << listOf({listOf({"x", "", "", "", "", ""})});
    QTest::newRow("empty rows") << "[[],[]]" << listOf({List(), List()});
    QTest::newRow("no rows") << "[]" << List();
    QTest::newRow("blanks around") << " \n[[\"文\"]] " << listOf({listOf({"文"})});
    QTest::newRow("wide blanks around") << "\u3000[[\"a\"]]\u00A0" << listOf({listOf({"a"})});
    QTest::newRow("escapes") << R"([["a\nb\u6587"]])" << listOf({listOf({"a\nb文"})});
    QTest::newRow("a row that is none") << R"([["a"], 5])" << List();
    QTest::newRow("flat") << R"(["a"])" << List();
    QTest::newRow("object") << R"({"a": [["b"]]})" << List();
    QTest::newRow("malformed") << R"([["a"])" << List();
    QTest::newRow("words") << "a,b" << List();
    QTest::newRow("empty") << "" << List();
    QTest::newRow("blank") << "  " << List();
}

void ValueConversionTest::jsonTables()
{
    QFETCH(QString, text);
    QTEST(parseJsonTable(text), "expected");
}

QTEST_GUILESS_MAIN(ValueConversionTest)

#include "ValueConversionTest.moc"
