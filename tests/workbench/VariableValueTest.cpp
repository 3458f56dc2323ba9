#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/variables/CellKind.h"
#include "refhost/workbench/variables/SpreadsheetText.h"
#include "refhost/workbench/variables/ValueConversion.h"
#include "refhost/workbench/variables/ValueInput.h"

#include "refhost/engine/ExactValue.h"
#include "tests/support/QuietTest.h"

#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(VarType)
Q_DECLARE_METATYPE(CellKind)

/// Values as they are typed, converted and copied.
class VariableValueTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void knowsWhatNeedsAViewer_data();
    void knowsWhatNeedsAViewer();
    void readsInput_data();
    void readsInput();
    void inputIsReadBack_data();
    void inputIsReadBack();
    void convertsValues_data();
    void convertsValues();
    void readsCells_data();
    void readsCells();
    void readsSpreadsheets_data();
    void readsSpreadsheets();
    void writesSpreadsheets();
};

void VariableValueTest::knowsWhatNeedsAViewer_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<VarType>("type");
    QTest::addColumn<bool>("needed");
    QTest::newRow("number") << QVariant(1) << VarType::Int << false;
    QTest::newRow("no text") << QVariant() << VarType::String << false;
    QTest::newRow("short text") << QVariant("一二　三 😀") << VarType::String << false;
    QTest::newRow("line feed") << QVariant("a\n") << VarType::String << true;
    QTest::newRow("carriage return") << QVariant("\r") << VarType::String << true;
    QTest::newRow("tabulator") << QVariant("a\tb") << VarType::String << true;
    QTest::newRow("null character") << QVariant(QString(QChar(0))) << VarType::String << true;
    QTest::newRow("no-break space") << QVariant(QString(QChar(0xa0))) << VarType::String << true;
    QTest::newRow("lone surrogate") << QVariant(QString(QChar(0xdc00))) << VarType::String << true;
    QTest::newRow("long text") << QVariant(QString(1001, 'a')) << VarType::String << true;
    QTest::newRow("no list") << QVariant() << VarType::List << true;
    QTest::newRow("table") << QVariant(QVariantList()) << VarType::Table << true;
}

void VariableValueTest::knowsWhatNeedsAViewer()
{
    QFETCH(QVariant, value);
    QFETCH(VarType, type);
    QTEST(needsViewer(value, type), "needed");
}

void VariableValueTest::readsInput_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<VarType>("type");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<QVariant>("value");

    const QVariant none;
    QTest::newRow("int") << "12" << VarType::Int << true << QVariant(12);
    QTest::newRow("spaces around") << " -3 " << VarType::Int << true << QVariant(-3);
    QTest::newRow("largest") << "2147483647" << VarType::Int << true << QVariant(2147483647);
    QTest::newRow("too large") << "2147483648" << VarType::Int << false << none;
    QTest::newRow("fraction") << "1.5" << VarType::Int << false << none;
    QTest::newRow("word") << "twelve" << VarType::Int << false << none;
    QTest::newRow("two numbers") << "1,2" << VarType::Int << false << none;
    QTest::newRow("no number") << "" << VarType::Int << true << none;
    QTest::newRow("double") << "0.25" << VarType::Double << true << QVariant(0.25);
    QTest::newRow("exponent") << "1e-3" << VarType::Double << true << QVariant(0.001);
    QTest::newRow("whole") << "2" << VarType::Double << true << QVariant(2.0);
    QTest::newRow("minus zero") << "-0" << VarType::Double << true << QVariant(-0.0);
    QTest::newRow("infinity") << "-inf" << VarType::Double << true
                              << QVariant(-std::numeric_limits<double>::infinity());
    QTest::newRow("comma") << "0,25" << VarType::Double << false << none;
    QTest::newRow("bool") << "true" << VarType::Bool << true << QVariant(true);
    QTest::newRow("no bool") << "yes" << VarType::Bool << false << none;
    QTest::newRow("text as it is") << " 1 " << VarType::String << true << QVariant(" 1 ");
    QTest::newRow("empty text") << "" << VarType::String << true << QVariant("");
    QTest::newRow("list") << "[1]" << VarType::List << true << QVariant(QVariantList{1});
    QTest::newRow("no list") << "1" << VarType::List << false << none;
    QTest::newRow("no table") << "[1]" << VarType::Table << false << none;
}

void VariableValueTest::readsInput()
{
    QFETCH(QString, text);
    QFETCH(VarType, type);
    QFETCH(bool, isRead);
    QFETCH(QVariant, value);
    const Result<QVariant> read = valueFromInput(text, type);
    QCOMPARE(bool(read), isRead);
    if (isRead)
        QVERIFY2(isSameValue(read.value(), value), qPrintable(valueWords(read.value())));
    else
        QVERIFY(!read.problem().message.isEmpty());
}

void VariableValueTest::inputIsReadBack_data()
{
    QTest::addColumn<double>("number");
    for (const double number : {0.0, -0.0, 0.1, 1.0 / 3, 1e300, -5e-324, 9007199254740993.0, 1e22})
        QTest::newRow(qPrintable(numberText(number))) << number;
}

void VariableValueTest::inputIsReadBack()
{
    QFETCH(double, number);
    const Result<QVariant> read = valueFromInput(inputText(number), VarType::Double);
    QVERIFY(read);
    QVERIFY(isSameValue(read.value(), number));
}

void VariableValueTest::convertsValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<VarType>("type");
    QTest::addColumn<QVariant>("converted");

    const QVariant none;
    const QVariant row = QVariantList{1, "a"};
    const QVariant rows = QVariantList{QVariantList{1}, QVariantList{2}};
    QTest::newRow("nothing") << none << VarType::Int << none;
    QTest::newRow("int to text") << QVariant(12) << VarType::String << QVariant("12");
    QTest::newRow("double to text") << QVariant(0.5) << VarType::String << QVariant("0.5");
    QTest::newRow("bool to text") << QVariant(true) << VarType::String << QVariant("true");
    QTest::newRow("list to text") << row << VarType::String << QVariant(R"([1,"a"])");
    QTest::newRow("text to int") << QVariant("12") << VarType::Int << QVariant(12);
    QTest::newRow("word to int") << QVariant("x") << VarType::Int << none;
    QTest::newRow("text to double") << QVariant("1.5") << VarType::Double << QVariant(1.5);
    QTest::newRow("text to bool") << QVariant("false") << VarType::Bool << QVariant(false);
    QTest::newRow("whole double to int") << QVariant(3.0) << VarType::Int << QVariant(3);
    QTest::newRow("fraction to int") << QVariant(3.5) << VarType::Int << none;
    QTest::newRow("large double to int") << QVariant(1e12) << VarType::Int << none;
    QTest::newRow("int to double") << QVariant(3) << VarType::Double << QVariant(3.0);
    QTest::newRow("one to bool") << QVariant(1) << VarType::Bool << QVariant(true);
    QTest::newRow("two to bool") << QVariant(2) << VarType::Bool << none;
    QTest::newRow("bool to int") << QVariant(true) << VarType::Int << QVariant(1);
    QTest::newRow("int to list") << QVariant(1) << VarType::List << QVariant(QVariantList{1});
    QTest::newRow("array to list") << QVariant(R"([1, "a"])") << VarType::List << row;
    QTest::newRow("text to list") << QVariant("a") << VarType::List << QVariant(QVariantList{"a"});
    QTest::newRow("empty text to list") << QVariant("") << VarType::List << none;
    QTest::newRow("list to int") << row << VarType::Int << none;
    QTest::newRow("table to list") << rows << VarType::List << rows;
    QTest::newRow("rows to table") << rows << VarType::Table << rows;
    QTest::newRow("list to table") << QVariant(QVariantList{1, 2}) << VarType::Table << rows;
    QTest::newRow("array to table") << QVariant("[[1],[2]]") << VarType::Table << rows;
}

void VariableValueTest::convertsValues()
{
    QFETCH(QVariant, value);
    QFETCH(VarType, type);
    QFETCH(QVariant, converted);
    const QVariant result = convertedValue(value, type);
    QVERIFY2(isSameValue(result, converted), qPrintable(valueWords(result)));
}

void VariableValueTest::readsCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<CellKind>("kind");
    QTest::addColumn<QVariant>("value");
    const QVariant refused;
    QTest::newRow("int") << "7" << CellKind::Integer << QVariant(7);
    QTest::newRow("of 64 bits") << "9007199254740993" << CellKind::Integer
                                << QVariant(qlonglong(9007199254740993));
    QTest::newRow("fraction") << "7.5" << CellKind::Integer << refused;
    QTest::newRow("too large") << "99999999999999999999" << CellKind::Integer << refused;
    QTest::newRow("double") << "7" << CellKind::Double << QVariant(7.0);
    QTest::newRow("emptied double") << "" << CellKind::Double << QVariant(0.0);
    QTest::newRow("text") << "007" << CellKind::Text << QVariant("007");
    QTest::newRow("bool") << "true" << CellKind::Bool << QVariant(true);
    QTest::newRow("no bool") << "1" << CellKind::Bool << refused;
    QTest::newRow("list") << "[1]" << CellKind::List << QVariant(QVariantList{1});
    QTest::newRow("foreign") << "x" << CellKind::Other << refused;
}

void VariableValueTest::readsCells()
{
    QFETCH(QString, text);
    QFETCH(CellKind, kind);
    QFETCH(QVariant, value);
    const Result<QVariant> read = cellFromInput(text, kind);
    QCOMPARE(bool(read), value.isValid());
    if (read)
        QVERIFY2(isSameValue(read.value(), value), qPrintable(valueWords(read.value())));
}

void VariableValueTest::readsSpreadsheets_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<QStringList>>("rows");
    using Rows = QVector<QStringList>;
    QTest::newRow("nothing") << "" << Rows{};
    QTest::newRow("one cell") << "a" << Rows{{"a"}};
    QTest::newRow("block") << "a\tb\nc\td\n" << Rows{{"a", "b"}, {"c", "d"}};
    QTest::newRow("CR LF") << "a\tb\r\nc\td\r\n" << Rows{{"a", "b"}, {"c", "d"}};
    QTest::newRow("CR") << "a\rb" << Rows{{"a"}, {"b"}};
    QTest::newRow("empty cells") << "\t\n\n\tx" << Rows{{"", ""}, {""}, {"", "x"}};
    QTest::newRow("quoted") << "\"a\tb\n\"\"c\"\"\"\td" << Rows{{"a\tb\n\"c\"", "d"}};
    QTest::newRow("quotes within") << "a\"b\"\t\"c\"d" << Rows{{"a\"b\"", "\"c\"d"}};
    QTest::newRow("quote without end") << "\"a\tb" << Rows{{"\"a", "b"}};
    QTest::newRow("quoted nothing") << "\"\"\tx" << Rows{{"", "x"}};
    QTest::newRow("ragged") << "a\nb\tc\n" << Rows{{"a"}, {"b", "c"}};
}

void VariableValueTest::readsSpreadsheets()
{
    QFETCH(QString, text);
    QTEST(cellsOfText(text), "rows");
}

void VariableValueTest::writesSpreadsheets()
{
    const QVector<QStringList> rows{{"a", "b\tc", "d\ne"}, {"\"", "", "x\"y"}, {"\r", "", ""}};
    QCOMPARE(textOfCells({{"a", "b"}, {"", "c"}}), "a\tb\n\tc\n");
    QCOMPARE(cellsOfText(textOfCells(rows)), rows);
}

QTEST_GUILESS_MAIN(VariableValueTest)
#include "VariableValueTest.moc"
