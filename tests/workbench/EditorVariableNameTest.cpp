#include "tests/support/QuietTest.h"
#include "tests/workbench/support/EditorBench.h"

#include <QComboBox>
#include <QLineEdit>

/// The editor of a variable's bare name offers those that fit, and makes missing ones.
class EditorVariableNameTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void offersVariablesThatFit_data();
    void offersVariablesThatFit();
    void choosesByKey();
    void typesAnyText();
    void keepsTheCursorAtANameOfTheList();
    void keepsOddNames();
    void remarks_data();
    void remarks();
    void declaresTheNameInOneStep_data();
    void declaresTheNameInOneStep();
    void declaresAnotherForAWrongType();
    void takesTheDollarAway();
    void listFollowsTheVariables();

private:
    static QList<TaskVariable> variables();
    QComboBox *field(const QString &name) const { return m_bench->part<QComboBox>(name); }

    std::unique_ptr<EditorBench> m_bench;
};

void EditorVariableNameTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<EditorBench>();
}

void EditorVariableNameTest::cleanup()
{
    m_bench.reset();
    QuietTest::cleanup();
}

QList<TaskVariable> EditorVariableNameTest::variables()
{
    return {{"z", VarType::String, {}},   {"n", VarType::Int, {}},
            {"a", VarType::String, {}},   {"d", VarType::Double, {}},
            {"items", VarType::List, {}}, {"$odd", VarType::String, {}}};
}

void EditorVariableNameTest::offersVariablesThatFit_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("string") << "text.append"
                            << "resultVar" << QStringList{"z", "a", "$odd"};
    QTest::newRow("int") << "text.find"
                         << "resultVar" << QStringList{"n"};
    QTest::newRow("list") << "text.split"
                          << "resultVar" << QStringList{"items"};
    QTest::newRow("scalar") << "editors.names"
                            << "source" << QStringList{"n", "d"};
    QTest::newRow("any") << "editors.names"
                         << "resultVar" << QStringList{"z", "n", "a", "d", "items", "$odd"};
}

void EditorVariableNameTest::offersVariablesThatFit()
{
    QFETCH(QString, typeId);
    QFETCH(QString, property);
    m_bench->open(typeId, variables());
    QStringList names;
    for (int i = 0; i < field(property)->count(); ++i)
        names.append(field(property)->itemText(i));
    QTEST(names, "names");
    QCOMPARE(field(property)->currentText(), QString());
}

void EditorVariableNameTest::choosesByKey()
{
    m_bench->open("text.append", variables());
    QTest::keyClick(field("resultVar"), Qt::Key_Down);
    QCOMPARE(m_bench->get("resultVar").toString(), QString("z"));
    QTest::keyClick(field("resultVar"), Qt::Key_Down);
    QCOMPARE(m_bench->get("resultVar").toString(), QString("a"));
    QCOMPARE(m_bench->bench.document.undoStack().count(), 2);
    m_bench->bench.document.undo();
    QCOMPARE(field("resultVar")->currentText(), QString("z"));
    QCOMPARE(m_bench->get("resultVar").toString(), QString("z"));
}

void EditorVariableNameTest::typesAnyText()
{
    m_bench->open("text.append", variables());
    QTest::keyClicks(field("resultVar")->lineEdit(), "zebra");
    QCOMPARE(m_bench->get("resultVar").toString(), QString("zebra"));
    QTest::keyClick(field("resultVar")->lineEdit(), Qt::Key_Home);
    QTest::keyClick(field("resultVar")->lineEdit(), Qt::Key_Delete);
    QCOMPARE(m_bench->get("resultVar").toString(), QString("ebra"));
    QCOMPARE(field("resultVar")->lineEdit()->cursorPosition(), 0);
    QTest::keyClick(field("resultVar"), Qt::Key_Return);
    QCOMPARE(m_bench->get("resultVar").toString(), QString("ebra"));
    QCOMPARE(field("resultVar")->count(), 3);
    QCOMPARE(m_bench->bench.document.undoStack().count(), 2);
}

void EditorVariableNameTest::keepsTheCursorAtANameOfTheList()
{
    m_bench->open("text.append", {{"abc", VarType::String, {}}, {"ab", VarType::String, {}}});
    QLineEdit *const line = field("resultVar")->lineEdit();
    QTest::keyClicks(line, "ac");
    QTest::keyClick(line, Qt::Key_Left);
    QTest::keyClicks(line, "b");
    QCOMPARE(line->text(), QString("abc"));
    QCOMPARE(line->cursorPosition(), 2);
    m_bench->set("sourceText", "x");
    QTest::keyClicks(line, "x");
    QCOMPARE(m_bench->get("resultVar").toString(), QString("abxc"));
    m_bench->set("resultVar", "abc");
    line->setSelection(1, 1);
    m_bench->set("sourceText", "y");
    QCOMPARE(line->selectedText(), QString("b"));
}

void EditorVariableNameTest::keepsOddNames()
{
    m_bench->open("text.append", variables());
    const QString odd = QString("a\n\t\u00a0\r") + QChar(0) + QChar(0xd83d);
    m_bench->set("resultVar", odd);
    QTest::keyClick(field("resultVar")->lineEdit(), Qt::Key_End);
    QTest::keyClicks(field("resultVar")->lineEdit(), "x");
    QCOMPARE(m_bench->get("resultVar").toString(), odd + "x");
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->get("resultVar").toString(), odd);
    m_bench->fix("resultVar");
    QVERIFY(m_bench->bench.document.state().variableNamed(odd));
    QCOMPARE(m_bench->remark("resultVar"), QString());
}

void EditorVariableNameTest::remarks_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Remark::Kind>("kind");
    QTest::addColumn<QString>("remark");
    using Kind = Remark::Kind;

    QTest::newRow("fits") << "text.append"
                          << "resultVar"
                          << "a" << Kind::None << "";
    QTest::newRow("nothing") << "text.append"
                             << "resultVar"
                             << "" << Kind::Error << "没有指定保存结果的变量";
    QTest::newRow("nothing to read") << "editors.names"
                                     << "source"
                                     << "" << Kind::Warning << "没有指定变量";
    QTest::newRow("undeclared") << "text.append"
                                << "resultVar"
                                << "x" << Kind::Error << "没有变量“x”";
    QTest::newRow("case") << "text.append"
                          << "resultVar"
                          << "A" << Kind::Error << "没有变量“A”";
    QTest::newRow("dollar") << "text.append"
                            << "resultVar"
                            << "$a" << Kind::Error << "此处只写变量名，前面不加“$”";
    QTest::newRow("called so") << "text.append"
                               << "resultVar"
                               << "$odd" << Kind::None << "";
    QTest::newRow("type") << "text.append"
                          << "resultVar"
                          << "n" << Kind::Error << "变量 n 是整数，此处需要字符串";
    QTest::newRow("type that takes a number")
        << "text.find"
        << "resultVar"
        << "a" << Kind::Warning << "变量 a 是字符串，此处需要整数";
    QTest::newRow("type to read") << "editors.names"
                                  << "source"
                                  << "a" << Kind::Error << "变量 a 是字符串，此处需要数值";
    QTest::newRow("any type") << "editors.names"
                              << "resultVar"
                              << "items" << Kind::None << "";
}

void EditorVariableNameTest::remarks()
{
    QFETCH(QString, typeId);
    QFETCH(QString, property);
    QFETCH(QString, name);
    m_bench->open(typeId, variables());
    QTest::keyClicks(field(property)->lineEdit(), name);
    QCOMPARE(m_bench->get(qPrintable(property)).toString(), name);
    QTEST(m_bench->remark(property), "remark");
    QTEST(m_bench->remarkKind(property), "kind");
}

void EditorVariableNameTest::declaresTheNameInOneStep_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<QString>("property");
    QTest::addColumn<int>("type");

    QTest::newRow("string") << "text.append"
                            << "resultVar" << int(VarType::String);
    QTest::newRow("int") << "text.find"
                         << "resultVar" << int(VarType::Int);
    QTest::newRow("list") << "text.split"
                          << "resultVar" << int(VarType::List);
    QTest::newRow("scalar") << "text.toNumber"
                            << "resultVar" << int(VarType::Double);
    QTest::newRow("scalar to read") << "editors.names"
                                    << "source" << int(VarType::Double);
    QTest::newRow("any") << "editors.names"
                         << "resultVar" << int(VarType::String);
}

void EditorVariableNameTest::declaresTheNameInOneStep()
{
    QFETCH(QString, typeId);
    QFETCH(QString, property);
    m_bench->open(typeId, variables());
    QTest::keyClicks(field(property)->lineEdit(), "fresh");
    m_bench->fix(property);
    const TaskDocument &document = m_bench->bench.document;
    QVERIFY(document.state().variableNamed("fresh"));
    const int type = int(document.state().variableNamed("fresh")->variable.type);
    QTEST(type, "type");
    QCOMPARE(m_bench->bench.document.undoStack().count(), 2);
    QCOMPARE(m_bench->remark(property), QString());
    m_bench->bench.document.undo();
    QVERIFY(!document.state().variableNamed("fresh"));
    QCOMPARE(m_bench->get(qPrintable(property)).toString(), QString("fresh"));
}

void EditorVariableNameTest::declaresAnotherForAWrongType()
{
    m_bench->open("text.append", variables());
    m_bench->set("resultVar", "n");
    m_bench->fix("resultVar");
    QCOMPARE(m_bench->get("resultVar").toString(), QString("n1"));
    const TaskState &state = m_bench->bench.document.state();
    QCOMPARE(state.variableNamed("n1")->variable.type, VarType::String);
    QCOMPARE(state.variableNamed("n")->variable.type, VarType::Int);
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->get("resultVar").toString(), QString("n"));
    QVERIFY(!m_bench->bench.document.state().variableNamed("n1"));
}

void EditorVariableNameTest::takesTheDollarAway()
{
    m_bench->open("text.append", variables());
    m_bench->set("resultVar", "$a");
    m_bench->fix("resultVar");
    QCOMPARE(m_bench->get("resultVar").toString(), QString("a"));
    QCOMPARE(field("resultVar")->currentText(), QString("a"));
    QCOMPARE(m_bench->remark("resultVar"), QString());
}

void EditorVariableNameTest::listFollowsTheVariables()
{
    m_bench->open("text.append", variables());
    m_bench->set("resultVar", "a");
    TaskDocument &document = m_bench->bench.document;
    document.change(
        "add", document.state().withVariable(0, {newStateId(), {"first", VarType::String, {}}}),
        {});
    QCOMPARE(field("resultVar")->itemText(0), QString("first"));
    QCOMPARE(field("resultVar")->currentText(), QString("a"));
    QCOMPARE(field("resultVar")->currentIndex(), 2);
    document.replace(document.state().withoutVariables({document.state().variableNamed("a")->id}));
    QCOMPARE(field("resultVar")->currentText(), QString("a"));
    QCOMPARE(field("resultVar")->count(), 3);
}

QTEST_MAIN(EditorVariableNameTest)
#include "EditorVariableNameTest.moc"
