#include "tests/support/ListOf.h"
#include "tests/support/OperationSuite.h"

#include "operations/TextJoinOperation.h"
#include "operations/common/Warning.h"

#include <QtTest>

namespace {

/// Has a property that logs a line when it is read.
class Separator : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    QString text() const
    {
        warn("separator");
        return "-";
    }
};

} // namespace

class TextJoinOperationTest : public OperationSuite
{
    Q_OBJECT

protected:
    Facts facts() const override;
    Operation *create(QObject *parent) const override { return new TextJoinOperation(parent); }
    void resultRows() const override;
    void presentationRows() const override;

private Q_SLOTS:
    void elements_data();
    void elements();
    void listIsReadBeforeTheSeparator();
};

OperationSuite::Facts TextJoinOperationTest::facts() const
{
    Facts facts = textFacts();
    facts.className = "TextJoinOperation";
    facts.typeId = "text.join";
    facts.typeName = "拼接文本";
    facts.icon = ":/images/text_join.svg";
    facts.annotations = QStringList{
        "prop_listVar = 用于拼接的列表",
        "editor_listVar = VARNAME:LIST",
        "varname_type_listVar = list",
        "prop_separator = 分隔符",
        "editor_separator = VARREF",
        "varref_kind_separator = string",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    facts.defaults = QVariantList{"", "", ""};
    facts.summaryTexts = QStringList{"拼接文本"};
    facts.sentenceTexts = QStringList{"将列表 %1 用 %2 拼接存入 %3"};
    return facts;
}

void TextJoinOperationTest::resultRows() const
{
    gives("list", {{"listVar", "list"}, {"separator", "-"}}, QString("x-1-y, z"));
    gives("no list named", {{"separator", "-"}}, QString(""));
    gives("undeclared", {{"listVar", "none"}}, QString(""),
          {"[TextOp] 变量 \"none\" 不是列表类型，已跳过"});
    gives("string variable", {{"listVar", "s"}}, QString(""),
          {"[TextOp] 变量 \"s\" 不是列表类型，已跳过"});
    gives("table variable", {{"listVar", "table"}}, QString(""),
          {"[TextOp] 变量 \"table\" 不是列表类型，已跳过"});
    gives("dollar belongs to the name", {{"listVar", "$list"}}, QString(""),
          {"[TextOp] 变量 \"$list\" 不是列表类型，已跳过"});
    gives("no member path", {{"listVar", "list.Items"}}, QString(""),
          {"[TextOp] 变量 \"list.Items\" 不是列表类型，已跳过"});
    warns("both wrong", {{"listVar", "none"}, {"into", 1}},
          {"[TextOp] 变量 \"none\" 不是列表类型，已跳过",
           "[TextOp] 变量 \"r\" 未声明为字符串，已跳过"});
}

void TextJoinOperationTest::presentationRows() const
{
    shows("all set", {{"listVar", "items"}, {"separator", ","}, {"resultVar", "out"}},
          "拼接文本: 列表 $items 以 , 拼接 -> $out", "将列表 $items 用 , 拼接存入 $out");
    shows("with dollars", {{"listVar", "$items"}, {"separator", "$sep"}, {"resultVar", "$out"}},
          "拼接文本: 列表 $items 以 $sep 拼接 -> $out", "将列表 $items 用 $sep 拼接存入 $out");
    shows("marker of a later value", {{"listVar", "%4"}, {"separator", "-"}, {"resultVar", "r"}},
          "拼接文本: 列表 $$r 以 - 拼接 -> $r", "将列表 $%4 用 - 拼接存入 $r");
    shows("defaults", {}, "拼接文本: 列表  以  拼接 -> ", "将列表  用  拼接存入 ");
}

void TextJoinOperationTest::elements_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("expected");
    using List = QVariantList;
    QTest::newRow("three") << QVariant(listOf({"a", "b", "c"})) << "-"
                           << "a-b-c";
    QTest::newRow("no separator") << QVariant(listOf({"a", "b", "c"})) << ""
                                  << "abc";
    QTest::newRow("one") << QVariant(listOf({"a"})) << "-"
                         << "a";
    QTest::newRow("none") << QVariant(List()) << "-"
                          << "";
    QTest::newRow("nested") << QVariant(listOf({1, listOf({2, 3}), "x"})) << "|"
                            << "1|2, 3|x";
    QTest::newRow("empty elements") << QVariant(listOf({"", QVariant(), ""})) << ","
                                    << ",,";
    QTest::newRow("numbers") << QVariant(listOf({1.5, 2.0, true})) << " "
                             << "1.5 2 true";
    QTest::newRow("strings") << QVariant(QStringList({"x", "y"})) << "+"
                             << "x+y";
    QTest::newRow("container") << QVariant::fromValue(QVector<int>({1, 2})) << "+"
                               << "1+2";
    QTest::newRow("number-like separator") << QVariant(listOf({"a", "b"})) << "1.0"
                                           << "a1b";
    QTest::newRow("no escapes") << QVariant(listOf({"a", "b"})) << "\\n"
                                << "a\\nb";
    QTest::newRow("separator from a variable") << QVariant(listOf({"a", "b"})) << "$sep"
                                               << "a；b";
    QTest::newRow("missing separator") << QVariant(listOf({"a", "b"})) << "$none"
                                       << "ab";
    QTest::newRow("the list as separator") << QVariant(listOf({"a", "b"})) << "$items"
                                           << "aa, bb";
    QTest::newRow("no list value") << QVariant("text") << ","
                                   << "";
    QTest::newRow("no value") << QVariant() << ","
                              << "";
}

void TextJoinOperationTest::elements()
{
    QFETCH(QVariant, value);
    QFETCH(QString, separator);
    VariableScope scope;
    scope.declare("items", VarType::List);
    scope.set("items", value);
    scope.declare("sep", VarType::String, "；");
    scope.declare("r", VarType::String, "old");
    TextJoinOperation operation;
    operation.setListVar("items");
    operation.setSeparator(separator);
    operation.setResultVar("r");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QTEST(scope.get("r").toString(), "expected");
    QCOMPARE(scope.get("items"), value);
}

void TextJoinOperationTest::listIsReadBeforeTheSeparator()
{
    Separator separator;
    VariableScope scope;
    scope.declare("o", VarType::String, QVariant::fromValue<QObject *>(&separator));
    scope.declare("r", VarType::String, "old");
    TextJoinOperation operation;
    operation.setListVar("none");
    operation.setSeparator("$o.text");
    operation.setResultVar("r");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QCOMPARE(takeWarnings(),
             QStringList({"[TextOp] 变量 \"none\" 不是列表类型，已跳过", "separator"}));
    QCOMPARE(scope.get("r"), QVariant(""));
}

QTEST_GUILESS_MAIN(TextJoinOperationTest)

#include "TextJoinOperationTest.moc"
