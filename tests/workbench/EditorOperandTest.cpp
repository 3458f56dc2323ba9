#include "refhost/workbench/look/Shades.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/EditorBench.h"

#include <QLineEdit>

/// The editors of operands tell what a step will make of them, and offer the variables that fit.
class EditorOperandTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void remarksOnTexts_data();
    void remarksOnTexts();
    void remarksOnNumbers_data();
    void remarksOnNumbers();
    void remarksFollowTheVariables();
    void colorsReferences();
    void offersVariablesByKind_data();
    void offersVariablesByKind();
    void insertsAVariable();
    void insertsSpecialCharacters();
    void declaresAVariableInPlace();
    void asksForANewVariable();
    void refusesATakenName();
    void mendsAMissingDollar();
    void keepsSpecialCharactersThroughUndo();

private:
    static QList<TaskVariable> variables();
    QStringList texts(const QMenu &menu) const;

    std::unique_ptr<EditorBench> m_bench;
};

void EditorOperandTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<EditorBench>();
}

void EditorOperandTest::cleanup()
{
    m_bench.reset();
    QuietTest::cleanup();
}

QList<TaskVariable> EditorOperandTest::variables()
{
    return {{"line", VarType::String, "a;b"},
            {"n", VarType::Int, 3},
            {"d", VarType::Double, {}},
            {"b", VarType::Bool, true},
            {"items", VarType::List, QVariantList{1, 2}},
            {"rows", VarType::Table, {}},
            {"empty", VarType::String, {}},
            {"digits", VarType::String, "12"},
            {"dotted.name", VarType::String, {}}};
}

/// The references that the menu offers, without what else is in it.
QStringList EditorOperandTest::texts(const QMenu &menu) const
{
    QStringList texts;
    for (const QAction *const action : menu.actions()) {
        if (action->data().isValid())
            texts.append(action->data().toString());
    }
    return texts;
}

void EditorOperandTest::remarksOnTexts_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Remark::Kind>("kind");
    QTest::addColumn<QString>("remark");
    using Kind = Remark::Kind;

    QTest::newRow("literal") << "text"
                             << "abc" << Kind::None << "";
    QTest::newRow("number as it is") << "text"
                                     << "1.5" << Kind::None << "";
    QTest::newRow("number that changes") << "text"
                                         << "1.50" << Kind::Warning << "将按数值 1.5 使用";
    QTest::newRow("leading zeros") << "text"
                                   << "007" << Kind::Warning << "将按数值 7 使用";
    QTest::newRow("number where one is welcome") << "exact"
                                                 << "1.50" << Kind::None << "";
    QTest::newRow("reference") << "text"
                               << "$line" << Kind::Quiet << "变量 line（字符串）= \"a;b\"";
    QTest::newRow("number") << "text"
                            << "$n" << Kind::Quiet << "变量 n（整数）= 3";
    QTest::newRow("without a value") << "text"
                                     << "$d" << Kind::Quiet << "变量 d（小数）= 0";
    QTest::newRow("empty text") << "text"
                                << "$empty" << Kind::Quiet << "变量 empty（字符串）= \"\"";
    QTest::newRow("count") << "text"
                           << "$items.Count" << Kind::Quiet << "变量 items（列表）的 Count = 2";
    QTest::newRow("columns of what is still empty")
        << "text"
        << "$rows.Columns" << Kind::Quiet << "变量 rows（表格）的 Columns = 0";
    QTest::newRow("list") << "text"
                          << "$items" << Kind::Warning
                          << "变量 items（列表）= 2 项；此处需要字符串";
    QTest::newRow("list where one is asked for")
        << "list"
        << "$items" << Kind::Quiet << "变量 items（列表）= 2 项";
    QTest::newRow("of another type")
        << "exact"
        << "$b" << Kind::Warning << "变量 b（布尔值）= true；此处需要小数、字符串";
    QTest::newRow("unknown kind") << "foreign"
                                  << "$items" << Kind::Quiet << "变量 items（列表）= 2 项";
    QTest::newRow("undeclared") << "text"
                                << "$nobody" << Kind::Error << "没有变量“nobody”";
    QTest::newRow("no member") << "text"
                               << "$items.Size" << Kind::Error
                               << "变量 items（列表）没有成员“Size”";
    QTest::newRow("no members at all")
        << "text"
        << "$line.Count" << Kind::Error << "变量 line（字符串）没有成员“Count”";
    QTest::newRow("dollar alone") << "text"
                                  << "$" << Kind::None << "";
}

void EditorOperandTest::remarksOnTexts()
{
    QFETCH(QString, property);
    QFETCH(QString, text);
    m_bench->open("editors.operands", variables());
    QTest::keyClicks(m_bench->text(property), text);
    QCOMPARE(m_bench->get(qPrintable(property)).toString(), text);
    QTEST(m_bench->remark(property), "remark");
    QTEST(m_bench->remarkKind(property), "kind");
}

void EditorOperandTest::remarksOnNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Remark::Kind>("kind");
    QTest::addColumn<QString>("remark");
    using Kind = Remark::Kind;

    QTest::newRow("whole") << "3" << Kind::None << "";
    QTest::newRow("empty") << "" << Kind::Warning << "没有填写数字";
    QTest::newRow("fraction") << "3.7" << Kind::Note << "将截为整数 3";
    QTest::newRow("negative fraction") << "-3.7" << Kind::Note << "将截为整数 -3";
    QTest::newRow("exponent") << "1e3" << Kind::None << "";
    QTest::newRow("most") << "2147483647" << Kind::None << "";
    QTest::newRow("most and a bit") << "2147483647.5" << Kind::Note << "将截为整数 2147483647";
    QTest::newRow("too much") << "2147483648" << Kind::Warning << "超出 32 位整数的范围";
    QTest::newRow("least") << "-2147483648" << Kind::None << "";
    QTest::newRow("too little") << "-2147483649" << Kind::Warning << "超出 32 位整数的范围";
    QTest::newRow("infinite") << "inf" << Kind::Warning << "超出 32 位整数的范围";
    QTest::newRow("none") << "nan" << Kind::Warning << "超出 32 位整数的范围";
    QTest::newRow("text") << "abc" << Kind::Error << "“abc”不是数字";
    QTest::newRow("group separators") << "1,000" << Kind::Error << "“1,000”不是数字";
    QTest::newRow("number") << "$n" << Kind::Quiet << "变量 n（整数）= 3";
    QTest::newRow("truth") << "$b" << Kind::Warning
                           << "变量 b（布尔值）= true；true 算作 1，false 算作 0";
    QTest::newRow("list") << "$items" << Kind::Error << "变量 items（列表）= 2 项；这不是数字";
    QTest::newRow("count") << "$items.Count" << Kind::Quiet << "变量 items（列表）的 Count = 2";
    QTest::newRow("a text") << "$line" << Kind::Warning
                            << "变量 line（字符串）= \"a;b\"；这不是数字";
    QTest::newRow("a text that is a number")
        << "$digits" << Kind::Quiet << "变量 digits（字符串）= \"12\"";
    QTest::newRow("undeclared") << "$nobody" << Kind::Error << "没有变量“nobody”";
}

void EditorOperandTest::remarksOnNumbers()
{
    QFETCH(QString, text);
    m_bench->open("text.substring", variables());
    m_bench->text("startIndex")->selectAll();
    QTest::keyClicks(m_bench->text("startIndex"), text);
    if (text.isEmpty())
        QTest::keyClick(m_bench->text("startIndex"), Qt::Key_Delete);
    QTEST(m_bench->remark("startIndex"), "remark");
    QTEST(m_bench->remarkKind("startIndex"), "kind");
    m_bench->open("editors.operands", variables());
    m_bench->set("size", "3.7");
    QCOMPARE(m_bench->remark("size"), QString());
}

void EditorOperandTest::remarksFollowTheVariables()
{
    m_bench->open("text.append", variables());
    m_bench->set("sourceText", "$line");
    TaskDocument &document = m_bench->bench.document;
    const int id = document.state().variableNamed("line")->id;
    document.change("value", document.state().withVariableChanged(id, {"line", VarType::Int, 7}),
                    {});
    QCOMPARE(m_bench->remark("sourceText"), QString("变量 line（整数）= 7"));
    document.change("remove", document.state().withoutVariables({id}), {});
    QCOMPARE(m_bench->remarkKind("sourceText"), Remark::Kind::Error);
    document.undo();
    QCOMPARE(m_bench->remarkKind("sourceText"), Remark::Kind::Quiet);
}

void EditorOperandTest::colorsReferences()
{
    m_bench->open("text.append", variables());
    ExactTextEdit *const field = m_bench->text("sourceText");
    const auto color = [field] { return field->palette().color(QPalette::Text); };
    const QColor plain = color();
    const Shades shades = Shades::of(m_bench->panel.palette());
    m_bench->set("sourceText", "$line");
    QCOMPARE(color(), shades.reference);
    m_bench->set("sourceText", "$lines");
    QCOMPARE(color(), shades.error);
    m_bench->set("sourceText", "line");
    QCOMPARE(color(), plain);
}

void EditorOperandTest::offersVariablesByKind_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QStringList>("welcome");
    QTest::addColumn<QStringList>("others");
    const QStringList members{"$items.Count", "$rows.Rows", "$rows.Columns"};
    const QStringList lists{"$items", "$rows"};

    QTest::newRow("string")
        << "text"
        << QStringList{"$line",         "$n",     "$d",     "$b", "$items.Count", "$rows.Rows",
                       "$rows.Columns", "$empty", "$digits"}
        << lists;
    QTest::newRow("types") << "exact" << QStringList{"$line", "$d", "$empty", "$digits"}
                           << QStringList{"$n",    "$b",         "$items",       "$items.Count",
                                          "$rows", "$rows.Rows", "$rows.Columns"};
    QTest::newRow("list") << "list" << QStringList{"$items"}
                          << QStringList{"$line",        "$n",     "$d",         "$b",
                                         "$items.Count", "$rows",  "$rows.Rows", "$rows.Columns",
                                         "$empty",       "$digits"};
    QTest::newRow("number") << "size" << (QStringList{"$n", "$d"} + members)
                            << QStringList{"$line", "$b", "$items", "$rows", "$empty", "$digits"};
    QTest::newRow("unknown") << "foreign"
                             << QStringList{"$line",         "$n",           "$d",     "$b",
                                            "$items",        "$items.Count", "$rows",  "$rows.Rows",
                                            "$rows.Columns", "$empty",       "$digits"}
                             << QStringList{};
}

void EditorOperandTest::offersVariablesByKind()
{
    QFETCH(QString, property);
    m_bench->open("editors.operands", variables());
    const QMenu *const menu = m_bench->menu(property);
    QTEST(texts(*menu), "welcome");
    const auto *const others = menu->findChild<QMenu *>("others");
    const QStringList offered = others ? texts(*others) : QStringList();
    QTEST(offered, "others");
}

void EditorOperandTest::insertsAVariable()
{
    m_bench->open("text.append", variables());
    QTest::keyClicks(m_bench->text("sourceText"), "abc");
    const QMenu *const menu = m_bench->menu("sourceText");
    QVERIFY(menu->actions().first()->text().contains("字符串"));
    menu->actions().first()->trigger();
    QCOMPARE(m_bench->get("sourceText").toString(), QString("$line"));
    QCOMPARE(m_bench->text("sourceText")->text(), QString("$line"));
    QCOMPARE(m_bench->bench.document.undoStack().count(), 2);
    QTest::keyClicks(m_bench->text("sourceText"), "s");
    QCOMPARE(m_bench->get("sourceText").toString(), QString("$lines"));
    m_bench->bench.document.undo();
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->get("sourceText").toString(), QString("abc"));
}

void EditorOperandTest::insertsSpecialCharacters()
{
    m_bench->open("text.append");
    QTest::keyClicks(m_bench->text("sourceText"), "ab");
    QTest::keyClick(m_bench->text("sourceText"), Qt::Key_Left);
    const QMenu *const menu = m_bench->menu("sourceText");
    QMenu *const characters = menu->actions().constLast()->menu();
    QVERIFY(characters);
    for (QAction *const action : characters->actions())
        action->trigger();
    QCOMPARE(m_bench->get("sourceText").toString(),
             QString("a\t\n\r\u00a0\u3000\u200b\ufeff") + QChar(0) + "b");
}

void EditorOperandTest::declaresAVariableInPlace()
{
    m_bench->open("text.substring");
    m_bench->set("sourceText", "$line");
    m_bench->set("startIndex", "$from");
    const int steps = m_bench->bench.document.undoStack().count();
    m_bench->fix("sourceText");
    m_bench->fix("startIndex");
    const TaskState &state = m_bench->bench.document.state();
    QCOMPARE(state.variableNamed("line")->variable.type, VarType::String);
    QCOMPARE(state.variableNamed("from")->variable.type, VarType::Int);
    QCOMPARE(m_bench->bench.document.undoStack().count(), steps + 2);
    QCOMPARE(m_bench->remarkKind("sourceText"), Remark::Kind::Quiet);
    QCOMPARE(m_bench->get("sourceText").toString(), QString("$line"));
}

void EditorOperandTest::asksForANewVariable()
{
    m_bench->open("text.append", {{"变量1", VarType::Int, {}}});
    m_bench->set("sourceText", "abc");
    for (QAction *const action : m_bench->menu("sourceText")->actions()) {
        if (action->text() == "新建变量…")
            action->trigger();
    }
    auto *const dialog = m_bench->panel.findChild<QDialog *>("newVariable");
    QVERIFY(dialog && dialog->isVisible());
    auto *const name = dialog->findChild<QLineEdit *>("newVariable.name");
    QCOMPARE(name->text(), QString("变量2"));
    QTest::keyClicks(name, "fresh");
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(m_bench->get("sourceText").toString(), QString("$fresh"));
    QCOMPARE(m_bench->bench.document.state().variableNamed("fresh")->variable.type,
             VarType::String);
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->get("sourceText").toString(), QString("abc"));
    QVERIFY(!m_bench->bench.document.state().variableNamed("fresh"));
}

void EditorOperandTest::refusesATakenName()
{
    m_bench->open("text.append", variables());
    m_bench->fix("resultVar");
    auto *const dialog = m_bench->panel.findChild<QDialog *>("newVariable");
    auto *const name = dialog->findChild<QLineEdit *>("newVariable.name");
    QTest::keyClicks(name, "line");
    QTest::keyClick(name, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    QTest::keyClick(name, Qt::Key_2);
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(m_bench->get("resultVar").toString(), QString("line2"));
    QCOMPARE(m_bench->bench.document.state().variables.size(), variables().size() + 1);
}

void EditorOperandTest::mendsAMissingDollar()
{
    m_bench->open("text.substring", variables());
    m_bench->set("startIndex", "n");
    m_bench->fix("startIndex");
    QCOMPARE(m_bench->get("startIndex").toString(), QString("$n"));
    QCOMPARE(m_bench->text("startIndex")->text(), QString("$n"));
}

void EditorOperandTest::keepsSpecialCharactersThroughUndo()
{
    const QString odd = QString("a\t\r\n\u00a0") + QChar(0) + QChar(0xd83d) + "\u2028\ufffc";
    m_bench->open("text.append");
    ExactTextEdit *const field = m_bench->text("sourceText");
    m_bench->set("sourceText", odd);
    QCOMPARE(field->text(), odd);
    field->moveCursor(QTextCursor::End);
    QTest::keyClicks(field, "x");
    QCOMPARE(m_bench->get("sourceText").toString(), odd + "x");
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->text(), odd);
    field->selectAll();
    QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_bench->text("appendText"), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_bench->get("appendText").toString(), odd);
}

QTEST_MAIN(EditorOperandTest)
#include "EditorOperandTest.moc"
