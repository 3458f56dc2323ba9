#include "tests/support/QuietTest.h"

#include "refhost/engine/FactBook.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/check/TaskCheck.h"

#include "Operation.h"

#include <QtTest>

#include <algorithm>
#include <memory>

/// The rules of a check: what each finds, and what it leaves alone.
class TaskCheckTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void references_data();
    void references() { compare(); }
    void types_data();
    void types() { compare(); }
    void literals_data();
    void literals() { compare(); }
    void numbers_data();
    void numbers() { compare(); }
    void specialNumbers_data();
    void specialNumbers() { compare(); }
    void searches_data();
    void searches() { compare(); }
    void widths_data();
    void widths() { compare(); }
    void starts_data();
    void starts() { compare(); }
    void names_data();
    void names() { compare(); }
    void choices_data();
    void choices() { compare(); }
    void flow_data();
    void flow() { compare(); }
    void emptyValues_data();
    void emptyValues();
    void remedies_data();
    void remedies();
    void everyMistakeHasRows();
    void order();
    void aFinding();
    void longTexts();
    void manySteps();
    void longChains();
    void withoutFacts();

private:
    QList<Finding> check(const QByteArray &json) const;
    void compare();

    std::unique_ptr<OperationCatalog> m_catalog;
    FactBook m_book;
    QStringList m_found; ///< the words of all mistakes found so far
};

namespace {

/// Variables of all types, all with a value to start with.
const char declared[] = R"("line": {"type": "string", "value": "a;b"},
    "part": {"type": "string", "value": ""},
    "parts": {"type": "list", "value": ["a", "b"]},
    "rows": {"type": "table", "value": [["a"], ["b"]]},
    "count": {"type": "int", "value": 3},
    "ratio": {"type": "double", "value": 0.5},
    "done": {"type": "bool", "value": true})";

void columns()
{
    QTest::addColumn<QByteArray>("task");
    QTest::addColumn<QStringList>("findings");
}

/// A row: more variables, the steps, and what is found in them, each as "steps[0].property:
/// severity word". Unused variables are left out.
void row(const char *name, const QByteArray &variables, const QByteArray &steps,
         const QStringList &findings)
{
    QByteArray all = declared;
    if (!variables.isEmpty())
        all += ", " + variables;
    QTest::newRow(name) << QByteArray("{\"variables\": {" + all + "}, \"steps\": [" + steps + "]}")
                        << findings;
}

/// A row with one text operand.
void textRow(const char *name, const char *operand, const QString &finding)
{
    const QByteArray step =
        QByteArray(R"({"type": "editors.operands", "text": ")") + operand + "\"}";
    row(name, {}, step,
        finding.isEmpty() ? QStringList() : QStringList("steps[0].text: " + finding));
}

/// A row with another operand of the same step.
void operandRow(const char *name, const char *property, const char *operand, const QString &finding)
{
    const QByteArray step =
        QByteArray(R"({"type": "editors.operands", ")") + property + "\": \"" + operand + "\"}";
    row(name, {}, step,
        finding.isEmpty() ? QStringList()
                          : QStringList(QString("steps[0].%1: %2").arg(property, finding)));
}

/// A row with one step that is given as it is.
void stepRow(const char *name, const char *step, const QString &finding)
{
    row(name, {}, step, finding.isEmpty() ? QStringList() : QStringList("steps[0]." + finding));
}

QString shown(const Finding &finding)
{
    const QString place =
        finding.step < 0 ? QString("task") : QString("steps[%1]").arg(finding.step);
    return QString("%1.%2: %3 %4")
        .arg(place, finding.property, severityName(finding.severity), mistakeId(finding.mistake));
}

} // namespace

void TaskCheckTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList{PLUGIN_FILE, EDITORS_PLUGIN});
    QVERIFY(m_catalog->failures().isEmpty());
    const Result<FactBook> book = FactBook::read(*m_catalog);
    QVERIFY2(book, qPrintable(book ? QString() : book.problem().toString()));
    m_book = book.value();
}

QList<Finding> TaskCheckTest::check(const QByteArray &json) const
{
    const Result<JsonObject> object = parseJsonObject(json, {});
    if (!object)
        qFatal("%s", qPrintable(object.problem().toString()));
    const Result<Task> task = TaskReader(*m_catalog).read(object.value());
    if (!task)
        qFatal("%s", qPrintable(task.problem().toString()));
    return checkTask(task.value(), *m_catalog, m_book);
}

void TaskCheckTest::compare()
{
    QFETCH(QByteArray, task);
    QFETCH(QStringList, findings);
    const bool withUnused = findings.join(' ').contains("unused-variable");
    QStringList found;
    const QList<Finding> all = check(task);
    for (const Finding &finding : all) {
        if (finding.mistake == Mistake::UnusedVariable && !withUnused)
            continue;
        found.append(shown(finding));
        m_found.append(mistakeId(finding.mistake));
        QVERIFY(!finding.message.isEmpty());
        QVERIFY(!finding.consequence.isEmpty());
        QVERIFY(!finding.remedy.isEmpty());
    }
    QCOMPARE(found.join('\n'), findings.join('\n'));
}

void TaskCheckTest::references_data()
{
    columns();
    const QString undeclared = "error undeclared-variable";
    textRow("declared", "$line", "");
    textRow("undeclared", "$lien", undeclared);
    textRow("other case", "$Line", undeclared);
    textRow("white space behind", "$line ", undeclared);
    textRow("in braces", "${line}", undeclared);
    textRow("going on", "$line, and more", undeclared);
    textRow("sum of money", "$5.00", undeclared);
    textRow("undeclared, with a path", "$lien.Count", undeclared);
    textRow("two dollars", "$$line", undeclared);
    operandRow("undeclared number", "size", "$coutn", undeclared);
    row("name with odd signs", R"("$line": {"type": "string", "value": ""},
        ".x": {"type": "string", "value": ""}, "a b": {"type": "string", "value": ""})",
        R"({"type": "editors.operands", "text": "$$line", "free": "$.x", "exact": "$a b"})", {});
    operandRow("undeclared and hidden", "extra", "$lien", "warning hidden-setting");

    const QByteArray dotted = R"("a.b": {"type": "string", "value": ""})";
    row("dotted name", dotted, R"({"type": "editors.operands", "text": "$a.b"})",
        {"steps[0].text: error dotted-name"});
    row("dotted name, number", dotted, R"({"type": "editors.operands", "size": "$a.b"})",
        {"steps[0].size: error dotted-name"});
    row("dotted name of a variable", R"("line.x": {"type": "string", "value": ""})",
        R"({"type": "editors.operands", "text": "$line.x"})", {"steps[0].text: error dotted-name"});
    row("dotted name that is a member too", R"("parts.Count": {"type": "int", "value": 1})",
        R"({"type": "editors.operands", "text": "$parts.Count"})", {});
    row("dotted name as a result", dotted, R"({"type": "editors.names", "source": "count",
        "resultVar": "a.b"})",
        {});

    for (const char *path : {"Count", "Rows", "Columns", "items", "COUNT"})
        textRow(path, qPrintable(QString("$rows.%1").arg(path)),
                QString(path) == "items" ? "warning reference-type" : "");
    textRow("unknown member of a list", "$parts.Size", "error unknown-path");
    textRow("unknown member of a table", "$rows.Cuont", "error unknown-path");
    textRow("member of a member", "$parts.Items.Count", "error unknown-path");
    textRow("number of a text", "$line.Count", "error path-without-list");
    textRow("any member of a number", "$count.x", "error path-without-list");
    operandRow("number of a number", "size", "$count.Count", "error path-without-list");
    textRow("columns of a list", "$parts.Columns", "warning unknown-path");
    operandRow("columns of a list as a number", "size", "$parts.columns", "warning unknown-path");
    const QByteArray columns = R"({"type": "editors.operands", "text": "$a.Columns"})";
    row("columns of rows in a list", R"("a": {"type": "list", "value": [["x"], "y"]})", columns,
        {});
    row("columns of a list that begins with no row", R"("a": {"type": "list",
        "value": ["x", ["y"]]})",
        columns, {"steps[0].text: warning unknown-path"});
    row("columns of a list from outside", R"("a": {"type": "list", "value": []})", columns, {});
    row("columns of a table from outside", R"("a": {"type": "table", "value": []})", columns, {});
    row("columns of a table without a value", R"("a": {"type": "table"})", columns,
        {"steps[0].text: warning reads-empty"});
    row("columns of a list that is written", R"("a": {"type": "list", "value": ["x"]})",
        R"({"type": "text.split", "sourceText": "x", "splitMode": "自定义字符", "separator": ";",
            "resultVar": "a"}, )" +
            columns,
        {});
    row("name with the columns in it", R"("parts.Columns": {"type": "int", "value": 1})",
        R"({"type": "editors.operands", "text": "$parts.Columns"})",
        {"steps[0].text: error dotted-name"});
    textRow("dot at the end", "$line.", "warning empty-path");
    textRow("dot at the end of nothing", "$lien.", undeclared);
    textRow("dots alone", "$..", undeclared);
}

void TaskCheckTest::types_data()
{
    columns();
    const QString finding = "warning reference-type";
    for (const char *name : {"line", "count", "ratio", "done"})
        textRow(name, qPrintable(QString("$%1").arg(name)), "");
    textRow("list as text", "$parts", finding);
    textRow("table as text", "$rows", finding);
    textRow("number of elements as text", "$parts.Count", "");
    operandRow("type asked for", "exact", "$ratio", "");
    operandRow("other type asked for", "exact", "$line", "");
    operandRow("type not asked for", "exact", "$count", finding);
    operandRow("bool not asked for", "exact", "$done", finding);
    operandRow("list not asked for", "exact", "$parts", finding);
    operandRow("a path is of its own type", "exact", "$parts.Count", finding);
    operandRow("list asked for", "list", "$parts", "");
    operandRow("its elements", "list", "$parts.Items", "");
    operandRow("text for a list", "list", "$line", finding);
    operandRow("word of a newer host", "foreign", "$done", "");
    operandRow("no restriction", "free", "$rows", "");
    operandRow("int as a number", "size", "$count", "");
    operandRow("double as a number", "size", "$ratio", "");
    operandRow("elements as a number", "size", "$parts.Count", "");
    operandRow("bool as a number", "size", "$done", finding);
    operandRow("list as a number", "size", "$parts", "error reference-type");
    operandRow("table as a number", "size", "$rows.Items", "error reference-type");
    const QByteArray digits = R"("digits": {"type": "string", "value": " 12 "})";
    const QByteArray words = R"("words": {"type": "string", "value": "twelve"})";
    const QByteArray step = R"({"type": "editors.operands", "size": "$words"})";
    row("text with a number", digits, R"({"type": "editors.operands", "size": "$digits"})", {});
    row("text without a number", words, step, {"steps[0].size: warning not-a-number"});
    row("text that is written", words,
        R"({"type": "text.append", "sourceText": "1", "resultVar": "words"}, )" + step, {});
    row("text without a value", R"("words": {"type": "string"})", step,
        {"steps[0].size: warning reads-empty"});
    row("text from outside", R"("words": {"type": "string", "value": ""})", step, {});
    row("blanks instead of a number", R"("words": {"type": "string", "value": " "})", step,
        {"steps[0].size: warning not-a-number"});
    row("list by its type", {}, R"({"type": "text.toNumber", "sourceText": "$parts",
        "resultVar": "ratio"})",
        {"steps[0].sourceText: " + finding});
}

void TaskCheckTest::literals_data()
{
    columns();
    const QString number = "warning number-as-text";
    textRow("empty", "", "");
    textRow("text", "line by line", "");
    textRow("zeros", "007", number);
    textRow("trailing zero", "1.50", number);
    textRow("whole fraction", "1.0", number);
    textRow("spaces", " 12 ", number);
    textRow("exponent", "1e3", number);
    textRow("plus", "+5", number);
    textRow("dot first", ".5", number);
    textRow("many digits", "12345678901234567890", number);
    textRow("number that stays", "12.5", "");
    textRow("negative number", "-7", "");
    textRow("zero", "0", "");
    textRow("infinite", "inf", "");
    textRow("nan", "nan", "");
    textRow("group separators", "1,000", "");
    textRow("hexadecimal", "0x10", "");
    textRow("date", "2024-01-05", "");
    operandRow("zeros where a number is welcome", "exact", "007", "");
    operandRow("zeros for no matter what", "free", "007", number);
    operandRow("hidden zeros", "extra", "007", "warning hidden-setting");

    const QString escape = "warning typed-escape";
    textRow("line feed", R"(a\\nb)", escape);
    textRow("tabulator", R"(\\t)", escape);
    textRow("carriage return", R"(\\r\\n)", escape);
    textRow("backslash", R"(a\\\\b)", escape);
    textRow("quote", R"(say \\\"hello\\\")", escape);
    textRow("code point", R"(\\u4e2d)", escape);
    textRow("half a code point", R"(\\u4e2)", "");
    textRow("other letter", R"(\\d+)", "");
    textRow("backslash at the end", R"(a\\)", "");
    textRow("true line feed", R"(a\nb\t\"c\")", "");
    textRow("file name", R"(C:\\temp\\new.txt)", "");
    textRow("file name of a server", R"(\\\\server\\new)", "");
    textRow("file name of two parts", R"(data\\new.txt)", "");
    textRow("file name of three parts", R"(data\\new\\table.txt)", "");
    textRow("Chinese file name", R"(数据\\new\\报表.xlsx)", "");
    textRow("file name from the top", R"(\\new\\table.csv)", "");
    textRow("folders", R"(data\\new\\old)", "");
    textRow("folders with a backslash behind", R"(data\\new\\)", "");
    textRow("file in this folder", R"(.\\table)", "");
    textRow("file in the folder above", R"(..\\new)", "");
    textRow("file in a variable folder", R"(%TEMP%\\new)", "");
    textRow("file name that goes on with a code point", R"(data\\u4e2d.txt)", "");
    textRow("file name with doubled backslashes", R"(data\\\\new\\\\table.txt)", escape);
    textRow("words in columns", R"(name\\tage\\tcity)", escape);
    textRow("words in lines", R"(hello\\nworld)", escape);
    textRow("line feed behind a file name", R"(table.txt\\n)", escape);
    textRow("line feed behind folders", R"(data\\old\\n)", escape);
    textRow("line feed behind a sentence", R"(See data.\\nBye)", escape);
    textRow("line feed behind a dot", R"(.\\n)", escape);
    textRow("numbers in lines", R"(total=1\\nrest=2.5)", escape);
    textRow("file name in a sentence", R"(请看：\\nnew.txt)", escape);
    textRow("in a name", R"($a\\nb)", "error undeclared-variable");

    const QString inner = "note dollar-in-text";
    textRow("dollar alone", "$", "note lone-dollar");
    textRow("name in a text", "Dear $line,", inner);
    textRow("name in braces", "Dear ${line}!", inner);
    textRow("name before Chinese", "你好$line您好", inner);
    textRow("second dollar", "5$ for $count", inner);
    textRow("name of nothing", "Dear $lien,", "");
    textRow("name with a tail", "Dear $lines,", "");
    textRow("brace that stays open", "Dear ${line", "");
    textRow("price", "It costs $5", "");
    textRow("dollar at the end", "US$", "");

    row("name of a variable", R"("title": {"type": "string", "value": "x"})",
        R"({"type": "editors.operands", "text": "title"})", {"steps[0].text: note missing-dollar"});
    row("name of a variable that is read", R"("title": {"type": "string", "value": "x"})",
        R"({"type": "editors.operands", "text": "title"},
           {"type": "editors.operands", "text": "$title"})",
        {});
    row("name in another case", R"("title": {"type": "string", "value": "x"})",
        R"({"type": "editors.operands", "text": "Title"})", {});
}

void TaskCheckTest::numbers_data()
{
    columns();
    operandRow("digits", "size", "12", "");
    operandRow("fraction", "size", "-2.5", "");
    operandRow("zeros", "size", "007", "");
    operandRow("empty", "size", "", "warning empty-number");
    operandRow("word", "size", "twelve", "error not-a-number");
    operandRow("group separators", "size", "1,000", "error not-a-number");
    operandRow("name without a dollar", "size", "count", "error not-a-number");
    operandRow("dollar alone", "size", "$", "error not-a-number");
    operandRow("blank", "size", " ", "error not-a-number");
    stepRow("JSON number", R"({"type": "editors.operands", "size": 1.5})", "");
    stepRow("hidden and empty", R"({"type": "text.substring", "sourceText": "$line",
        "startIndex": 0, "resultVar": "part"})",
            "");
    stepRow("shown and empty", R"({"type": "text.substring", "sourceText": "$line",
        "startIndex": 0, "lengthMode": 1, "resultVar": "part"})",
            "charCount: warning empty-number");
}

void TaskCheckTest::specialNumbers_data()
{
    columns();
    const QString special = "warning special-number";
    operandRow("infinite", "size", "inf", special);
    operandRow("negative infinite", "size", "-inf", special);
    operandRow("no number at all", "size", "nan", special);
    operandRow("in capitals", "size", "NaN", special);
    operandRow("infinite text", "size", "$endless", "error undeclared-variable");
    row("infinite text in a variable", R"("words": {"type": "string", "value": "inf"})",
        R"({"type": "editors.operands", "size": "$words"})", {"steps[0].size: " + special});
    row("infinite number in a variable", R"("endless": {"type": "double", "value": "inf"})",
        R"({"type": "editors.operands", "size": "$endless"})", {});
    operandRow("a word", "size", "infinity", "error not-a-number");

    const QString beyond = "warning number-beyond-int";
    const auto startRow = [](const char *name, const char *start, const QString &finding) {
        stepRow(name,
                QByteArray(R"({"type": "text.substring", "sourceText": "$line", "startIndex": ")") +
                    start + R"(", "resultVar": "part"})",
                finding.isEmpty() ? QString() : "startIndex: " + finding);
    };
    startRow("largest start", "2147483647", "");
    startRow("start beyond", "2147483648", beyond);
    startRow("lowest start", "-2147483648", "");
    startRow("start below", "-2147483649", beyond);
    startRow("infinite start", "inf", special);
    operandRow("large, but no int asked for", "size", "3000000000", "");

    const auto toNumber = [](const char *name, const QByteArray &variables, const char *text,
                             const char *result, const QStringList &findings) {
        row(name, variables,
            QByteArray(R"({"type": "text.toNumber", "sourceText": ")") + text +
                R"(", "resultVar": ")" + result + "\"}",
            findings);
    };
    toNumber("largest int", {}, "2147483647", "count", {});
    toNumber("number beyond an int", {}, "3000000000", "count", {"steps[0].resultVar: " + beyond});
    toNumber("number beyond an int in a double", {}, "3000000000", "ratio", {});
    const QByteArray phone = R"("phone": {"type": "string", "value": "13800138000"})";
    toNumber("start value beyond an int", phone, "$phone", "count",
             {"steps[0].resultVar: " + beyond});
    toNumber("infinite result", {}, "inf", "ratio", {"steps[0].sourceText: " + special});

    const QString none = "steps[0].sourceText: error not-a-number";
    toNumber("literal", {}, "12.5", "ratio", {});
    toNumber("literal with blanks", {}, " 12 ", "ratio", {});
    toNumber("literal that is no number", {}, "￥12", "ratio", {none});
    toNumber("no literal", {}, "", "ratio", {none});
    const QString no = "steps[0].sourceText: warning not-a-number";
    for (const char *price : {"1,234.5", "12元", "１２", "12%", "abc", "1 000"}) {
        const QByteArray variable =
            QByteArray(R"("price": {"type": "string", "value": ")") + price + "\"}";
        toNumber(price, variable, "$price", "ratio", {no});
    }
    for (const char *price : {"1234.5", " 12\\n", "-1e3", ""}) {
        const QByteArray variable =
            QByteArray(R"("price": {"type": "string", "value": ")") + price + "\"}";
        toNumber(*price ? price : "text from outside", variable, "$price", "ratio", {});
    }
    toNumber("int", {}, "$count", "ratio", {});
    toNumber("bool", {}, "$done", "ratio", {"steps[0].sourceText: warning reference-type"});
    const QByteArray price = R"("price": {"type": "string", "value": "1,234"})";
    const QByteArray clean = R"({"type": "text.replace", "sourceText": "$price", "oldText": ",",
        "newText": "", "resultVar": "price"})";
    const QByteArray read =
        R"({"type": "text.toNumber", "sourceText": "$price", "resultVar": "ratio"})";
    row("start value that is cleaned first", price, clean + ',' + read, {});
    row("start value that is cleaned too late", price, read + ',' + clean, {no});

    stepRow("empty with a default, total", R"({"type": "text.pad", "sourceText": "$line",
        "padText": "-", "resultVar": "part"})",
            "");
    stepRow("empty with a default, decimals", R"({"type": "text.fromNumber", "value": "$ratio",
        "resultVar": "part"})",
            "");
    stepRow("empty with a default, width", R"({"type": "text.split", "sourceText": "$line",
        "resultVar": "parts"})",
            "");
    stepRow("empty without a default", R"({"type": "text.fromNumber", "resultVar": "part"})",
            "value: warning empty-number");
}

void TaskCheckTest::searches_data()
{
    columns();
    // A search of "x" in a text from outside.
    const auto searchRow = [](const QByteArray &needle, const QString &finding,
                              const char *source = "$part") {
        const QByteArray step = QByteArray(R"({"type": "text.find", "sourceText": ")") + source +
                                R"(", "resultVar": "count", "searchText": ")" + needle + "\"}";
        row(needle + " in " + source, {}, step,
            finding.isEmpty() ? QStringList() : QStringList("steps[0].searchText: " + finding));
    };
    const QString pattern = "warning typed-pattern";
    // As they stand in JSON, with a blank between two.
    const QString patterns =
        R"([0-9]+ [0-9] [1-9][0-9]* [a-z] [A-Za-z0-9_]+ \\d \\d+ \\d{4} ^\\s* \\S+@\\S+ \\w+ *.txt *.*
           report*.xlsx file?.csv 报表*.xlsx .* a.*b .+ [^,]+ [^;]* \\. \\(x\\) (?i)total (?:a|b)
           [一-龥]+ v1.*)";
    const QString texts =
        R"(; x [ ] [备注] [note] [] (a|b) a.b a|b 5* 必填* *** **bold** ... ....* 3.5 ? what? a+b C++
           c: {name} {1} ^ ^_^ ( ) (?) # // /* */ \\ C:\\data \\server \\data\\sub [12] [1-3]
           [2024-01-05] a*b 2*3.5)";
    for (const QString &text : patterns.simplified().split(' '))
        searchRow(text.toUtf8(), pattern);
    for (const QString &text : texts.simplified().split(' '))
        searchRow(text.toUtf8(), "");
    searchRow("[0-9]+", "", "the class [0-9]+ stands here");
    searchRow("*.txt", pattern, "a.txt");

    const auto splitRow = [](const char *name, const char *separator, const QString &finding) {
        const QByteArray step =
            QByteArray(R"({"type": "text.split", "sourceText": "$part", "splitMode": 1,
            "resultVar": "parts", "separator": ")") +
            separator + "\"}";
        stepRow(name, step, finding.isEmpty() ? QString() : "separator: " + finding);
    };
    splitRow("two separators", "[,;]", pattern);
    splitRow("one or the other", ",|;", pattern);
    splitRow("blanks", R"(\\s+)", pattern);
    splitRow("bar", "|", "");
    splitRow("bars", " || ", "");
    splitRow("comma", ",", "");
    splitRow("no separator", "", "warning empty-search");

    const QString empty = "warning empty-search";
    stepRow("no search text", R"({"type": "text.find", "sourceText": "$part",
        "resultVar": "count"})",
            "searchText: " + empty);
    stepRow("nothing to replace", R"({"type": "text.replace", "sourceText": "$part",
        "newText": "x", "resultVar": "part"})",
            "oldText: " + empty);
    stepRow("replaced by nothing", R"({"type": "text.replace", "sourceText": "$part",
        "oldText": "x", "resultVar": "part"})",
            "");
    stepRow("no marker", R"({"type": "text.between", "sourceText": "$part", "cutMode": 0,
        "resultVar": "part"})",
            "endMarker: " + empty);
    stepRow("no end", R"({"type": "text.between", "sourceText": "$part", "cutMode": 2,
        "startMarker": "x", "resultVar": "part"})",
            "endMarker: " + empty);
    stepRow("pattern as a marker", R"({"type": "text.between", "sourceText": "$part",
        "cutMode": 1, "startMarker": "[0-9]", "resultVar": "part"})",
            "startMarker: " + pattern);
    stepRow("pattern that is put in", R"({"type": "text.replace", "sourceText": "$part",
        "oldText": "x", "newText": "[0-9]+", "resultVar": "part"})",
            "");
    stepRow("pattern that is padded", R"({"type": "text.append", "sourceText": "$part",
        "appendText": ".*", "resultVar": "part"})",
            "");
}

void TaskCheckTest::widths_data()
{
    columns();
    const QString width = "full-width";
    textRow("full-width reference", "＄line", "warning " + width);
    textRow("full-width dollar in a text", "Dear ＄line!", "note " + width);
    textRow("full-width dollar and no name", "＄lien", "");
    textRow("full-width price", "＄5", "");
    operandRow("full-width number", "size", "＄count", "error not-a-number");

    // Splits "source", which starts with the text, at the separator.
    const auto splitRow = [](const char *name, const char *text, const char *separator,
                             bool isFound, const char *more = "") {
        const QByteArray variable =
            QByteArray(R"("source": {"type": "string", "value": ")") + text + "\"}";
        const QByteArray split = QByteArray(R"({"type": "text.split", "sourceText": "$source",
            "splitMode": 1, "resultVar": "parts", "separator": ")") +
                                 separator + "\"}";
        const int step = *more ? 1 : 0;
        row(name, variable, *more ? more + QByteArray(",") + split : split,
            isFound ? QStringList(QString("steps[%1].separator: warning full-width").arg(step))
                    : QStringList());
    };
    splitRow("full-width semicolon", "a;b", "；", true);
    splitRow("half-width semicolon", "a；b", ";", true);
    splitRow("full-width comma", "1,2,3", "，", true);
    splitRow("full-width colon", "名称: 钢笔", "：", true);
    splitRow("ideographic space", "a b", "　", true);
    splitRow("the same", "a；b", "；", false);
    splitRow("both in the data", "a;b；c", "；", false);
    splitRow("neither in the data", "a/b", "；", false);
    splitRow("from outside", "", "；", false);
    splitRow("trimmed before", " a;b ", "；", true,
             R"({"type": "text.trim", "sourceText": "$source", "mode": 2, "resultVar": "source"})");
    splitRow("made full-width before", "a;b", "；", false,
             R"({"type": "text.replace", "sourceText": "$source", "oldText": ";",
                 "newText": "；", "resultVar": "source"})");
    splitRow("appended before", "a;b", "；", false,
             R"({"type": "text.append", "sourceText": "$source", "appendText": "；c",
                 "resultVar": "source"})");
    splitRow("appended from outside", "a;b", "；", false,
             R"({"type": "text.append", "sourceText": "$source", "appendText": "$part",
                 "resultVar": "source"})");
    const QByteArray source = R"("source": {"type": "string", "value": "a,b"})";
    const auto replace = [](const QByteArray &from, const QByteArray &to) {
        return R"({"type": "text.replace", "sourceText": "$source", "oldText": ")" + from +
               R"(", "newText": ")" + to + R"(", "resultVar": "source"})";
    };
    row("one form made of two", source, replace("，", ","), {});
    row("both forms taken out", source, replace(",", "") + ',' + replace("，", ""), {});
    row("one form taken out", source, replace("，", ""), {"steps[0].oldText: warning " + width});
    row("joined list", R"("list": {"type": "list", "value": ["a", "b"]})",
        R"({"type": "text.join", "listVar": "list", "separator": ";", "resultVar": "line"},
           {"type": "text.find", "sourceText": "$line", "searchText": "；", "resultVar": "count"})",
        {"steps[1].searchText: warning " + width});
}

void TaskCheckTest::starts_data()
{
    columns();
    const QString note = "steps[1].startIndex: note maybe-not-found";
    const auto cutRow = [](const char *name, const char *source, const char *needle,
                           const char *start, const QStringList &findings) {
        row(name, R"("place": {"type": "int"})",
            QByteArray(R"({"type": "text.find", "sourceText": ")") + source +
                R"(", "searchText": ")" + needle + R"(", "resultVar": "place"},
                {"type": "text.substring", "sourceText": ")" +
                source + R"(", "startIndex": ")" + start + R"(", "resultVar": "part"})",
            findings);
    };
    cutRow("position in a text from outside", "$part", ";", "$place", {note});
    cutRow("position in a text that has it", "$line", ";", "$place", {});
    cutRow("position in a text that has it not", "$line", "#", "$place", {note});
    cutRow("position in a literal", "a-b", "-", "$place", {});
    cutRow("position of a text from outside", "$line", "$part", "$place", {note});
    cutRow("another variable", "$part", ";", "$count", {});
    row("position as a count", R"("place": {"type": "int"})",
        R"({"type": "text.find", "sourceText": "$part", "searchText": ";", "resultVar": "place"},
           {"type": "text.substring", "sourceText": "$part", "startIndex": 0, "lengthMode": 1,
            "charCount": "$place", "resultVar": "part"})",
        {});
    row("position that is written anew", R"("place": {"type": "int"})",
        R"({"type": "text.find", "sourceText": "$part", "searchText": ";", "resultVar": "place"},
           {"type": "text.fromNumber", "value": "$place", "resultVar": "line"},
           {"type": "text.toNumber", "sourceText": "3", "resultVar": "place"},
           {"type": "text.substring", "sourceText": "$part", "startIndex": "$place",
            "resultVar": "part"})",
        {});
    row("position of filling", R"("place": {"type": "int"})",
        R"({"type": "text.find", "sourceText": "$part", "searchText": ";", "resultVar": "place"},
           {"type": "text.pad", "sourceText": "$part", "position": 1, "index": "$place",
            "padText": "-", "resultVar": "part"})",
        {"steps[1].index: note maybe-not-found"});
}

void TaskCheckTest::names_data()
{
    columns();
    const auto resultRow = [](const char *name, const char *type, const char *variable,
                              const QString &finding) {
        const QByteArray step = QByteArray(R"({"type": ")") + type + R"(", "sourceText": "$part",
            "resultVar": ")" + variable +
                                "\"}";
        stepRow(name, step, finding.isEmpty() ? QString() : "resultVar: " + finding);
    };
    resultRow("string", "text.reverse", "part", "");
    resultRow("empty", "text.reverse", "", "error empty-result");
    resultRow("undeclared", "text.reverse", "prat", "error undeclared-result");
    resultRow("with a dollar", "text.reverse", "$part", "error name-with-dollar");
    resultRow("with a dollar, undeclared", "text.reverse", "$x", "error name-with-dollar");
    resultRow("dollar alone", "text.reverse", "$", "error undeclared-result");
    resultRow("number for a string", "text.reverse", "count", "error result-type");
    resultRow("list for a string", "text.reverse", "parts", "error result-type");
    resultRow("scalar, int", "text.toNumber", "count", "");
    resultRow("scalar, double", "text.toNumber", "ratio", "");
    resultRow("scalar, string", "text.toNumber", "part", "warning result-type");
    resultRow("scalar, bool", "text.toNumber", "done", "warning result-type");
    resultRow("scalar, table", "text.toNumber", "rows", "error result-type");
    resultRow("scalar, list", "text.toNumber", "parts", "error result-type");
    const auto findRow = [](const char *name, const char *variable, const QString &finding) {
        const QByteArray step = QByteArray(R"({"type": "text.find", "sourceText": "$line",
            "searchText": ";", "resultVar": ")") +
                                variable + "\"}";
        stepRow(name, step, finding.isEmpty() ? QString() : "resultVar: " + finding);
    };
    findRow("int", "count", "");
    findRow("int, double", "ratio", "warning result-type");
    row("name that begins with a dollar", R"("$x": {"type": "string"})",
        R"({"type": "text.reverse", "sourceText": "a", "resultVar": "$x"})", {});

    const auto inputRow = [](const char *name, const char *variable, const QString &finding) {
        const QByteArray step = QByteArray(R"({"type": "text.join", "separator": ";",
            "resultVar": "part", "listVar": ")") +
                                variable + "\"}";
        stepRow(name, step, finding.isEmpty() ? QString() : "listVar: " + finding);
    };
    inputRow("list", "parts", "");
    inputRow("no list named", "", "warning empty-input");
    inputRow("undeclared list", "prats", "error undeclared-variable");
    inputRow("list with a dollar", "$parts", "error name-with-dollar");
    inputRow("text for a list", "line", "error input-type");
    inputRow("table for a list", "rows", "error input-type");
    stepRow("number", R"({"type": "editors.names", "source": "ratio", "resultVar": "parts"})", "");
    stepRow("text for a number", R"({"type": "editors.names", "source": "line",
        "resultVar": "done"})",
            "source: error input-type");
}

void TaskCheckTest::choices_data()
{
    columns();
    stepRow("mode", R"({"type": "editors.operands", "mode": 2})", "");
    stepRow("mode beyond", R"({"type": "editors.operands", "mode": 3})",
            "mode: warning unknown-mode");
    stepRow("negative mode", R"({"type": "editors.operands", "mode": -1})",
            "mode: warning unknown-mode");
    const QString hidden = "warning hidden-setting";
    stepRow("shown", R"({"type": "editors.operands", "mode": 1, "extra": "x"})", "");
    stepRow("also shown", R"({"type": "editors.operands", "mode": "three", "extra": "x"})", "");
    stepRow("hidden", R"({"type": "editors.operands", "mode": 0, "extra": "x"})",
            "extra: " + hidden);
    stepRow("hidden and empty", R"({"type": "editors.operands", "extra": ""})", "extra: " + hidden);
    stepRow("hidden at its default", R"({"type": "editors.operands", "extra": "default"})", "");
    stepRow("hidden flag", R"({"type": "editors.operands", "mode": 1, "flag": true})",
            "flag: " + hidden);
    stepRow("hidden flag, unset", R"({"type": "editors.operands", "mode": 1, "flag": false})", "");
    stepRow("hidden by an unknown mode", R"({"type": "editors.operands", "mode": 7, "extra": "x"})",
            "mode: warning unknown-mode");
    stepRow("hidden by nothing there", R"({"type": "editors.operands", "lost": "x"})", "");
    stepRow("never hidden", R"({"type": "editors.operands", "ratio": 2.5})", "");
}

void TaskCheckTest::flow_data()
{
    columns();
    const QByteArray bare = R"("a": {"type": "string"})";
    const QByteArray read = R"({"type": "editors.operands", "text": "$a"})";
    const QByteArray write = R"({"type": "text.reverse", "sourceText": "x", "resultVar": "a"})";
    const QByteArray both = R"({"type": "text.append", "sourceText": "$a", "appendText": "x",
                                "resultVar": "a"})";
    const QString empty = "steps[0].text: warning reads-empty";
    const QString early = "steps[0].text: warning read-before-write";
    const QString lost = "steps[0].resultVar: note overwritten-unread";
    row("written, then read", bare, write + ',' + read, {});
    row("written only", bare, write, {});
    row("read only", bare, read, {empty});
    row("read twice", bare, read + ',' + read, {empty});
    row("read only, with a value", R"("a": {"type": "string", "value": ""})", read, {});
    row("member read only", R"("a": {"type": "list"})",
        R"({"type": "editors.operands", "text": "$a.Count"})", {empty});
    row("read by its name", R"("a": {"type": "int"})",
        R"({"type": "editors.names", "source": "a", "resultVar": "part"})",
        {"steps[0].source: warning reads-empty"});
    row("read where it is hidden", bare, R"({"type": "editors.operands", "extra": "$a"})",
        {"steps[0].extra: warning hidden-setting"});
    row("read too early", bare, read + ',' + write, {early});
    row("read too early, with a value", R"("a": {"type": "string", "value": "x"})",
        read + ',' + write, {});
    row("grows from empty", bare, both + ',' + both, {});
    row("read early and late", bare, read + ',' + write + ',' + read, {early});
    row("overwritten", bare, write + ',' + write, {lost});
    row("overwritten twice", bare, write + ',' + write + ',' + write,
        {lost, "steps[1].resultVar: note overwritten-unread"});
    row("overwritten by a step that reads it", bare, write + ',' + both, {});
    row("read before it is overwritten", bare, write + ',' + read + ',' + write, {});
    row("overwritten before it is read", bare, write + ',' + write + ',' + read, {lost});
    row("read where it is hidden, then overwritten", bare,
        write + R"(,{"type": "editors.operands", "extra": "$a"},)" + write,
        {"steps[1].extra: warning hidden-setting"});

    QTest::newRow("unused") << QByteArray(R"({"variables": {"a": {"type": "int", "value": 1},
        "b": {"type": "list"}, "c": {"type": "string"}}, "steps": [
        {"type": "text.reverse", "sourceText": "x", "resultVar": "c"}]})")
                            << QStringList{"task.a: note unused-variable",
                                           "task.b: note unused-variable"};
    QTest::newRow("no steps") << QByteArray(R"({"variables": {"a": {"type": "int"}}, "steps": []})")
                              << QStringList{"task.a: note unused-variable"};
    QTest::newRow("nothing") << QByteArray(R"({"steps": []})") << QStringList();
    // A step that cannot write the variable neither gives it a value nor takes one away.
    const QByteArray find = R"({"type": "text.find", "sourceText": "x", "searchText": "x",
                                "resultVar": "n"})";
    const QByteArray reverse = R"({"type": "text.reverse", "sourceText": "x", "resultVar": "n"})";
    row("not overwritten by another type", R"("n": {"type": "int"})", find + ',' + reverse,
        {"steps[1].resultVar: error result-type"});
    row("overwritten in another form", R"("n": {"type": "double"})", find + ',' + find,
        {"steps[0].resultVar: warning result-type", "steps[0].resultVar: note overwritten-unread",
         "steps[1].resultVar: warning result-type"});
    row("not written by another type, then read", R"("n": {"type": "int"})",
        reverse + R"(, {"type": "editors.operands", "text": "$n"})",
        {"steps[0].resultVar: error result-type", "steps[1].text: warning reads-empty"});

    // An input that is another one when it is read again.
    const QByteArray input = R"("input": {"type": "string", "value": ""},
        "a": {"type": "string"}, "b": {"type": "string"})";
    const auto reversed = [](const QByteArray &from, const QByteArray &to) {
        return R"({"type": "text.reverse", "sourceText": ")" + from + R"(", "resultVar": ")" + to +
               "\"}";
    };
    row("input overwritten", input,
        reversed("$input", "a") + ',' + reversed("$a", "input") + ',' + reversed("$input", "b"),
        {"steps[1].resultVar: note input-overwritten"});
    row("input changed in its place", input,
        reversed("$input", "a") + ',' + reversed("$input", "input") + ',' + reversed("$input", "b"),
        {});
    row("input changed first", input, reversed("$input", "input") + ',' + reversed("$input", "b"),
        {});
    row("input overwritten last", input, reversed("$input", "a") + ',' + reversed("$a", "input"),
        {});
    row("no input", input,
        reversed("$a", "input") + ',' + reversed("$input", "b") + ',' + reversed("$b", "a"),
        {"steps[0].sourceText: warning read-before-write"});
    row("variable without a start value", {}, reversed("x", "part"), {});

    // A name near to it tells nothing about the variable but that it was not forgotten.
    row("read only, and meant elsewhere", R"("price": {"type": "string"})",
        R"({"type": "editors.operands", "text": "$prise"},
           {"type": "editors.operands", "text": "$price"})",
        {"steps[0].text: error undeclared-variable", "steps[1].text: warning reads-empty"});
    row("read too early, and meant elsewhere", R"("price": {"type": "string"})",
        R"({"type": "editors.operands", "text": "$price"},
           {"type": "editors.operands", "text": "price!", "free": "$prise"},
           {"type": "text.reverse", "sourceText": "x", "resultVar": "price"})",
        {"steps[0].text: warning read-before-write", "steps[1].free: error undeclared-variable"});
    row("overwritten, and meant elsewhere", R"("price": {"type": "string"})",
        R"({"type": "text.reverse", "sourceText": "x", "resultVar": "price"},
           {"type": "text.reverse", "sourceText": "$Price", "resultVar": "price"})",
        {"steps[0].resultVar: note overwritten-unread",
         "steps[1].sourceText: error undeclared-variable"});
    row("member that is not there read only", R"("a": {"type": "list"})",
        R"({"type": "editors.operands", "text": "$a.length"})",
        {"steps[0].text: error unknown-path"});
    // A variable that was meant elsewhere is not unused as well.
    QTest::newRow("meant elsewhere")
        << QByteArray(R"({"variables": {"name": {"type": "string"}, "list": {"type": "list"},
            "size": {"type": "int"}, "a.b": {"type": "int"}, "used": {"type": "int"},
            "out": {"type": "string"}}, "steps": [
            {"type": "editors.operands", "text": "$Name", "free": "of $list", "exact": "$a.b",
             "size": "size"}, {"type": "text.reverse", "resultVar": "$out"}]})")
        << QStringList{
               "steps[0].text: error undeclared-variable",   "steps[0].exact: error dotted-name",
               "steps[0].free: note dollar-in-text",         "steps[0].size: error not-a-number",
               "steps[1].resultVar: error name-with-dollar", "task.used: note unused-variable"};
}

void TaskCheckTest::emptyValues_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("step");
    QTest::addColumn<QString>("consequence");
    const auto row = [](const char *type, const char *property, const char *text,
                        const char *found) {
        const QByteArray id =
            QByteArray(property) == "source" ? "editors.names" : "editors.operands";
        const QByteArray result = id == "editors.names" ? R"(, "resultVar": "part")" : "";
        QTest::addRow("%s, %s %s", type, property, text)
            << QByteArray(type)
            << QByteArray(R"({"type": ")" + id + R"(", ")" + property + R"(": ")" + text + '"' +
                          result + '}')
            << QString("the step reads ") + found;
    };
    row("string", "text", "$a", "an empty text");
    row("string", "text", "$a.", "an empty text");
    row("string", "size", "$a", "an empty text, which is no number");
    row("int", "text", "$a", "0");
    row("int", "source", "a", "0");
    row("double", "size", "$a", "0");
    row("bool", "text", "$a", "false");
    row("bool", "size", "$a", "0");
    row("list", "list", "$a", "an empty list");
    row("list", "list", "$a.Items", "an empty list");
    row("table", "free", "$a", "an empty table");
    row("list", "text", "$a.Count", "0");
    row("table", "size", "$a.Rows", "0");
    row("table", "text", "$a.Columns", "nothing");
}

void TaskCheckTest::emptyValues()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, step);
    const QList<Finding> findings =
        check(R"({"variables": {"part": {"type": "string"}, "a": {"type": ")" + type +
              R"("}}, "steps": [)" + step + "]}");
    const auto found = std::find_if(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.mistake == Mistake::ReadsEmpty;
    });
    QVERIFY(found != findings.end());
    QTEST(found->consequence, "consequence");
}

void TaskCheckTest::remedies_data()
{
    QTest::addColumn<QString>("operand");
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QString>("remedy");
    const auto row = [](const char *operand, const QStringList &variables, const char *remedy) {
        QStringList declarations;
        for (const QString &name : variables)
            declarations.append(QString(R"("%1": {"type": "string", "value": ""})").arg(name));
        QTest::addRow("%s of %s", operand, qPrintable(variables.join(' ')))
            << operand << declarations.join(',') << remedy;
    };
    row("$lien", {"line"}, R"(declare "lien", or write "$line")");
    row("$lin", {"line"}, R"(declare "lin", or write "$line")");
    row("$lime", {"link", "line"}, R"(declare "lime", or write "$line")");
    row("$custmer", {"customer", "cuts"}, R"(declare "custmer", or write "$customer")");
    row("$LIEN", {"line"}, R"(declare "LIEN", or write "$line")");
    row("$Line", {"lines", "line"}, R"(write "$line": capital and small letters differ)");
    row("$ line", {"line"}, R"(write "$line": white space is part of a name)");
    row("$line", {" line"}, R"(write "$ line": white space is part of a name)");
    row("$LINE ", {"line"}, R"(write "$line": capital and small letters differ)");
    row("${line}", {"line"}, R"(write "$line", without braces)");
    row("$line!", {"line"},
        R"(write "$line" alone, and put what follows it behind it in a step of its own)");
    row("$line-part of it", {"line", "line-part"},
        R"(write "$line-part" alone, and put what follows it behind it in a step of its own)");
    row("$订单号码都在", {"订单"},
        R"(write "$订单" alone, and put what follows it behind it in a step of its own)");
    const char *const sign = "; a text that begins with \"$\" has to come from a variable";
    row("$linesofit", {"line"}, qPrintable(QString("declare \"linesofit\"") + sign));
    row("$订单abcdefg", {"订单"},
        R"(write "$订单" alone, and put what follows it behind it in a step of its own)");
    row("$ab", {"ac"}, qPrintable(QString("declare \"ab\"") + sign));
    row("$b", {"a"}, qPrintable(QString("declare \"b\"") + sign));
    row("$x", {}, qPrintable(QString("declare \"x\"") + sign));
}

void TaskCheckTest::remedies()
{
    QFETCH(QString, operand);
    QFETCH(QString, variables);
    const QString task =
        QString(R"({"variables": {%1}, "steps": [{"type": "editors.operands", "text": "%2"}]})")
            .arg(variables, operand);
    const QList<Finding> findings = check(task.toUtf8());
    QVERIFY(!findings.isEmpty());
    QCOMPARE(mistakeId(findings.first().mistake), QString("undeclared-variable"));
    QTEST(findings.first().remedy, "remedy");
}

void TaskCheckTest::everyMistakeHasRows()
{
    if (m_found.isEmpty())
        return; // this function alone was asked for
    const QStringList ids = mistakeIds();
    for (const QString &id : ids)
        QVERIFY2(m_found.contains(id), qPrintable(id));
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), ids.size());
    QCOMPARE(ids.size(), static_cast<int>(Mistake::UnusedVariable) + 1);
}

void TaskCheckTest::order()
{
    const QList<Finding> findings = check(R"({"variables": {"a": {"type": "string"},
        "z": {"type": "int"}}, "steps": [
        {"type": "text.append", "sourceText": "$x", "appendText": "$a", "resultVar": ""},
        {"type": "text.append", "sourceText": "$x", "appendText": "007", "resultVar": "y"}]})");
    QStringList places;
    for (const Finding &finding : findings)
        places.append(finding.place());
    QCOMPARE(places,
             QStringList({"steps[0] text.append sourceText", "steps[0] text.append appendText",
                          "steps[0] text.append resultVar", "steps[1] text.append sourceText",
                          "steps[1] text.append appendText", "steps[1] text.append resultVar",
                          "variables.z"}));
}

void TaskCheckTest::aFinding()
{
    const QList<Finding> findings =
        check(R"({"variables": {"line": {"type": "string", "value": "x"}},
        "steps": [{"type": "editors.operands"}, {"type": "editors.operands", "text": "$lien"}]})");
    QCOMPARE(findings.size(), 1);
    const Finding &finding = findings.first();
    QCOMPARE(finding.mistake, Mistake::UndeclaredVariable);
    QCOMPARE(finding.severity, Severity::Error);
    QCOMPARE(finding.step, 1);
    QCOMPARE(finding.typeId, QString("editors.operands"));
    QCOMPARE(finding.property, QString("text"));
    QCOMPARE(finding.text, QString("$lien"));
    QCOMPARE(finding.message, QString("\"$lien\" names no variable"));
    QCOMPARE(finding.consequence, QString("the operand counts as empty text"));
    QCOMPARE(finding.meant, QString("line"));
}

void TaskCheckTest::longTexts()
{
    // Long texts are cut in messages, and names as long as texts are not compared letter by letter.
    const QByteArray text(1000000, '$');
    const QList<Finding> findings =
        check(R"({"variables": {")" + text.mid(1) + R"(x": {"type": "string", "value": ""}},
              "steps": [{"type": "editors.operands", "text": ")" +
              text + R"("},
                        {"type": "editors.operands", "text": "x)" +
              text + R"("}]})");
    QCOMPARE(findings.size(), 2);
    QVERIFY2(findings.first().message.size() < 200, qPrintable(findings.first().message));
    QCOMPARE(findings.first().text.size(), text.size());

    // Not within a pair of surrogates.
    const QByteArray name = QByteArray(58, 'x') + "\U0001F600\U0001F600";
    const QList<Finding> cut =
        check(R"({"steps": [{"type": "editors.operands", "text": "$)" + name + R"("}]})");
    QCOMPARE(cut.first().message, "\"$" + QString(58, 'x') + "…\" names no variable");
}

void TaskCheckTest::manySteps()
{
    // Time grows with the task, not with its square.
    QByteArray variables;
    QByteArray steps;
    for (int i = 0; i < 3000; ++i) {
        const QByteArray number = QByteArray::number(i);
        variables += (i ? ",\"v" : "\"v") + number + R"(": {"type": "string", "value": ""})";
        steps += (i ? "," : "") + (R"({"type": "text.append", "sourceText": "$v)" + number +
                                   R"(", "appendText": "$r", "resultVar": "r"})");
    }
    const QList<Finding> findings =
        check("{\"variables\": {" + variables + R"(, "r": {"type": "string"}}, "steps": [)" +
              steps + "]}");
    QCOMPARE(findings.size(), 0);
}

void TaskCheckTest::longChains()
{
    // Neither time nor the stack grows with the steps that a text has gone through.
    QByteArray steps;
    for (int i = 0; i < 5000; ++i) {
        steps += (i ? "," : "") + QByteArray(R"({"type": "text.replace", "sourceText": "$r",
            "oldText": "；", "newText": ";", "resultVar": "r"})");
    }
    QCOMPARE(
        check(R"({"variables": {"r": {"type": "string", "value": "x"}}, "steps": [)" + steps + "]}")
            .size(),
        0);
}

void TaskCheckTest::withoutFacts()
{
    // Without a file of facts nothing is known but what annotations tell.
    const Result<JsonObject> json = parseJsonObject(
        R"({"variables": {"r": {"type": "string"}, "n": {"type": "int"}}, "steps": [
            {"type": "text.find", "sourceText": "a;b", "searchText": "[0-9]+", "resultVar": "n"},
            {"type": "text.substring", "sourceText": "$r", "startIndex": "$n", "resultVar": "r"},
            {"type": "text.pad", "sourceText": "$r", "padText": "-", "resultVar": "r"}]})",
        {});
    const Result<Task> task = TaskReader(*m_catalog).read(json.value());
    const QList<Finding> findings = checkTask(task.value(), *m_catalog);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(shown(findings.first()), QString("steps[2].totalLength: warning empty-number"));
}

QTEST_GUILESS_MAIN(TaskCheckTest)

#include "TaskCheckTest.moc"
