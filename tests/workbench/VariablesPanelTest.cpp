#include "refhost/workbench/variables/VariablesPanel.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/CellRules.h"
#include "refhost/workbench/variables/CellTable.h"
#include "refhost/workbench/variables/CurrentValues.h"
#include "refhost/workbench/variables/ListGrid.h"
#include "refhost/workbench/variables/TextViewer.h"
#include "refhost/workbench/variables/VariableModel.h"
#include "refhost/workbench/variables/WholeTextEdit.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/CellTyping.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QTest>

Q_DECLARE_METATYPE(VarType)

namespace {

/// A run that is wherever a test wants it to be.
class ScriptedValues : public CurrentValues
{
public:
    bool areThere() const override { return hasBegun; }
    bool mayChange() const override { return hasBegun && isPaused; }
    QVariant value(const QString &variable) const override { return values.value(variable); }
    QStringList written() const override { return lastWritten; }
    void set(const QString &variable, const QVariant &value) override
    {
        values.insert(variable, value);
        Q_EMIT changed();
    }

    bool hasBegun = false;
    bool isPaused = true;
    QHash<QString, QVariant> values;
    QStringList lastWritten;
};

} // namespace

/// Variables are added, edited and removed in the panel, every time as one step of undo.
class VariablesPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void addsAndSelectsTheName();
    void duplicates();
    void deletesWithARemark();
    void movesUpAndDown();
    void renamesWithReferences();
    void renamesWithoutReferences();
    void refusesNames_data();
    void refusesNames();
    void refusedTextStaysWhenTheRowIsLeft();
    void refusalEndsWithEscape();
    void editsStartValues_data();
    void editsStartValues();
    void refusesStartValues_data();
    void refusesStartValues();
    void leavesUntouchedValuesAlone();
    void choosesTruthValues();
    void changesTypes_data();
    void changesTypes();
    void typedTextSurvivesChanges();
    void opensTexts();
    void opensLists();
    void showsCurrentValues();
    void editsCurrentValues();
    void currentValuesAreFixedWhileRunning();
    void opensCurrentValues();
    void marksWhatWasWritten();
    void showsUnusedNamesQuietly();
    void goesToAPlace();
    void undoGoesToTheVariable();
    void copiesValues();
    void actionsFollowTheSelection();
    void realRunIsReadyAtFirst();

private:
    int addVariable(const QString &name, VarType type, const QVariant &value = {});
    int addStep(const QVariantMap &properties);
    QModelIndex cell(int row, int column) const { return m_table->model()->index(row, column); }
    QString shown(int row, int column) const { return cell(row, column).data().toString(); }
    const TaskState &state() const { return m_bench->document.state(); }
    TaskVariable variable(int row) const { return state().variables.at(row).variable; }
    int undoSteps() const { return m_bench->document.undoStack().count(); }
    QString stepText(const char *property) const;
    CellEdit *startEditing(int row, int column) { return ::startEditing(*m_table, row, column); }
    void typeInto(int row, int column, const QString &text)
    {
        ::typeInto(*m_table, row, column, text);
    }
    QString refusal() const;
    void trigger(const char *action);

    std::unique_ptr<Workbench> m_bench;
    std::unique_ptr<VariablesPanel> m_panel;
    ScriptedValues *m_values = nullptr;
    CellTable *m_table = nullptr;
};

void VariablesPanelTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<Workbench>(QStringList{QStringLiteral(PLUGIN_FILE)});
    auto values = std::make_unique<ScriptedValues>();
    m_values = values.get();
    m_panel = std::make_unique<VariablesPanel>(*m_bench, std::move(values));
    m_table = m_panel->findChild<CellTable *>("variables.table");
    m_panel->resize(800, 400);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void VariablesPanelTest::cleanup()
{
    m_panel.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

int VariablesPanelTest::addVariable(const QString &name, VarType type, const QVariant &value)
{
    const int id = newStateId();
    m_bench->document.replace(state().withVariable(99, {id, {name, type, value}}));
    return id;
}

int VariablesPanelTest::addStep(const QVariantMap &properties)
{
    const StepState step = newStepOf(m_bench->library.catalog(), "text.append", properties);
    m_bench->document.replace(state().withSteps(99, {step}));
    return step.id;
}

QString VariablesPanelTest::stepText(const char *property) const
{
    return state().steps.constFirst().operation->property(property).toString();
}

/// What is told beside an editor, empty when nothing is.
QString VariablesPanelTest::refusal() const
{
    const auto bubbles = m_panel->findChildren<QLabel *>("refusal");
    for (const QLabel *const bubble : bubbles) {
        if (bubble->isVisible())
            return bubble->text();
    }
    return {};
}

void VariablesPanelTest::trigger(const char *action)
{
    m_panel->findChild<QAction *>(QStringLiteral("variables.") + action)->trigger();
}

void VariablesPanelTest::addsAndSelectsTheName()
{
    m_table->setFocus();
    QTest::keyClick(m_table, Qt::Key_Insert);
    QCOMPARE(shown(0, VariableModel::NameColumn), "变量1");
    auto *const edit = m_table->findChild<CellEdit *>("cell");
    QVERIFY(edit);
    QCOMPARE(edit->selectedText(), "变量1");
    QTest::keyClicks(edit, "line");
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(state().variableNames(), QStringList{"line"});
    m_bench->document.undo();
    QCOMPARE(state().variableNames(), QStringList{"变量1"});
    m_bench->document.undo();
    QVERIFY(state().variables.isEmpty());
    m_bench->document.redo();
    QCOMPARE(state().variableNames(), QStringList{"变量1"});
}

void VariablesPanelTest::duplicates()
{
    addVariable("a", VarType::List, QVariantList{1});
    addVariable("b", VarType::Int);
    m_table->setCurrentIndex(cell(0, 0));
    trigger("duplicate");
    QCOMPARE(state().variableNames(), (QStringList{"a", "a1", "b"}));
    QCOMPARE(variable(1).value, QVariant(QVariantList{1}));
    QCOMPARE(m_table->currentIndex().row(), 1);
    m_bench->document.undo();
    QCOMPARE(state().variableNames(), (QStringList{"a", "b"}));
}

void VariablesPanelTest::deletesWithARemark()
{
    addVariable("a", VarType::String);
    addVariable("b", VarType::String);
    addStep({{"sourceText", "$a"}});
    auto *const remark = m_panel->findChild<QLabel *>("variables.remark");
    m_table->setFocus();
    m_table->setCurrentIndex(cell(1, 0));
    QTest::keyClick(m_table, Qt::Key_Delete);
    QCOMPARE(state().variableNames(), QStringList{"a"});
    QVERIFY(!remark->isVisible());
    QTest::keyClick(m_table, Qt::Key_Delete);
    QVERIFY(state().variables.isEmpty());
    QCOMPARE(remark->text(), "已删除变量“a”，还有 1 个步骤用到。可以撤销。");
    QVERIFY(remark->isVisible());
    m_bench->document.undo();
    QCOMPARE(state().variableNames(), QStringList{"a"});
    QVERIFY(!remark->isVisible());
    m_bench->document.undo();
    QCOMPARE(state().variableNames(), (QStringList{"a", "b"}));
}

void VariablesPanelTest::movesUpAndDown()
{
    for (const char *const name : {"a", "b", "c"})
        addVariable(name, VarType::Int);
    m_table->setFocus();
    m_table->setCurrentIndex(cell(0, 0));
    QTest::keyClick(m_table, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(state().variableNames(), (QStringList{"b", "a", "c"}));
    QCOMPARE(shown(m_table->currentIndex().row(), 0), "a");
    QTest::keyClick(m_table, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(m_table, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(state().variableNames(), (QStringList{"b", "c", "a"}));
    QTest::keyClick(m_table, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(state().variableNames(), (QStringList{"b", "a", "c"}));
    QCOMPARE(undoSteps(), 3);
}

void VariablesPanelTest::renamesWithReferences()
{
    addVariable("a", VarType::String);
    addStep({{"sourceText", "$a.Count"}, {"appendText", "$ab"}, {"resultVar", "a"}});
    typeInto(0, VariableModel::NameColumn, "line");
    QCOMPARE(variable(0).name, "line");
    QCOMPARE(stepText("sourceText"), "$line.Count");
    QCOMPARE(stepText("appendText"), "$ab");
    QCOMPARE(stepText("resultVar"), "line");
    QCOMPARE(undoSteps(), 1);
    m_bench->document.undo();
    QCOMPARE(variable(0).name, "a");
    QCOMPARE(stepText("sourceText"), "$a.Count");
    QCOMPARE(stepText("resultVar"), "a");
}

void VariablesPanelTest::renamesWithoutReferences()
{
    addVariable("a", VarType::String);
    addStep({{"sourceText", "$a"}});
    auto *const setting = m_panel->findChild<QCheckBox *>("variables.renamesInSteps");
    QVERIFY(setting->isChecked());
    setting->click();
    typeInto(0, VariableModel::NameColumn, "b.c");
    QCOMPARE(variable(0).name, "b.c");
    QCOMPARE(stepText("sourceText"), "$a");
}

void VariablesPanelTest::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("taken") << "b";
    QTest::newRow("breaks a reference") << "x.y";
}

void VariablesPanelTest::refusesNames()
{
    QFETCH(QString, name);
    addVariable("a", VarType::String);
    addVariable("b", VarType::String);
    addStep({{"sourceText", "$a"}});
    typeInto(0, VariableModel::NameColumn, name);
    QVERIFY(!refusal().isEmpty());
    auto *const edit = m_table->findChild<CellEdit *>("cell");
    QVERIFY(edit && edit->isVisible());
    QCOMPARE(edit->text(), name);
    QCOMPARE(undoSteps(), 0);
    QVERIFY(!m_panel->commitEditing());
    QTest::keyClicks(edit, "c");
    QVERIFY(refusal().isEmpty());
    edit->setText("c");
    QVERIFY(m_panel->commitEditing());
    QCOMPARE(variable(0).name, "c");
    QCOMPARE(stepText("sourceText"), "$c");
}

void VariablesPanelTest::refusedTextStaysWhenTheRowIsLeft()
{
    addVariable("a", VarType::Int, 1);
    addVariable("b", VarType::Int, 2);
    CellEdit *const edit = startEditing(0, VariableModel::StartColumn);
    edit->setText("one");
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {},
                      m_table->visualRect(cell(1, 0)).center());
    QCoreApplication::processEvents();
    QVERIFY(edit->isVisible());
    QCOMPARE(edit->text(), "one");
    QVERIFY(!refusal().isEmpty());
    edit->setText("11");
    QVERIFY(m_panel->commitEditing());
    QCOMPARE(variable(0).value, QVariant(11));
}

void VariablesPanelTest::refusalEndsWithEscape()
{
    addVariable("a", VarType::Int, 1);
    typeInto(0, VariableModel::StartColumn, "one");
    QVERIFY(!refusal().isEmpty());
    QTest::keyClick(m_table->findChild<CellEdit *>("cell"), Qt::Key_Escape);
    QTRY_VERIFY(!m_table->findChild<CellEdit *>("cell"));
    QVERIFY(refusal().isEmpty());
    QCOMPARE(variable(0).value, QVariant(1));
}

void VariablesPanelTest::editsStartValues_data()
{
    QTest::addColumn<VarType>("type");
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("int") << VarType::Int << QVariant(1) << "-20" << QVariant(-20);
    QTest::newRow("int without a value") << VarType::Int << QVariant() << "3" << QVariant(3);
    QTest::newRow("emptied int") << VarType::Int << QVariant(1) << "" << QVariant();
    QTest::newRow("double") << VarType::Double << QVariant(1.0) << "0.1" << QVariant(0.1);
    QTest::newRow("text") << VarType::String << QVariant("a") << " b 1" << QVariant(" b 1");
    QTest::newRow("emptied text") << VarType::String << QVariant("a") << "" << QVariant("");
}

void VariablesPanelTest::editsStartValues()
{
    QFETCH(VarType, type);
    QFETCH(QVariant, before);
    QFETCH(QString, typed);
    QFETCH(QVariant, after);
    addVariable("a", type, before);
    typeInto(0, VariableModel::StartColumn, typed);
    QVERIFY2(isSameValue(variable(0).value, after), qPrintable(valueWords(variable(0).value)));
    QCOMPARE(undoSteps(), 1);
    m_bench->document.undo();
    QVERIFY(isSameValue(variable(0).value, before));
    m_bench->document.redo();
    QVERIFY(isSameValue(variable(0).value, after));
}

void VariablesPanelTest::refusesStartValues_data()
{
    QTest::addColumn<VarType>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("told");
    QTest::newRow("int") << VarType::Int << "1.5"
                         << "整数";
    QTest::newRow("large int") << VarType::Int << "2147483648"
                               << "2147483647";
    QTest::newRow("double") << VarType::Double << "0,5"
                            << "0.5";
}

void VariablesPanelTest::refusesStartValues()
{
    QFETCH(VarType, type);
    QFETCH(QString, typed);
    QFETCH(QString, told);
    addVariable("a", type);
    typeInto(0, VariableModel::StartColumn, typed);
    QVERIFY2(refusal().contains(told), qPrintable(refusal()));
    QCOMPARE(m_table->findChild<CellEdit *>("cell")->text(), typed);
    QCOMPARE(undoSteps(), 0);
}

void VariablesPanelTest::leavesUntouchedValuesAlone()
{
    addVariable("a", VarType::Double, 9007199254740993.0);
    addVariable("b", VarType::String);
    for (const int row : {0, 1}) {
        CellEdit *const edit = startEditing(row, VariableModel::StartColumn);
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_VERIFY(!m_table->findChild<CellEdit *>("cell"));
    }
    QCOMPARE(undoSteps(), 0);
    QVERIFY(!variable(1).value.isValid());
}

void VariablesPanelTest::choosesTruthValues()
{
    addVariable("a", VarType::Bool);
    startEditing(0, VariableModel::StartColumn);
    auto *const box = m_table->findChild<QComboBox *>("choice");
    QVERIFY(box);
    QCOMPARE(box->currentText(), "false");
    box->setCurrentIndex(1);
    Q_EMIT box->activated(1);
    QCOMPARE(variable(0).value, QVariant(true));
    QTRY_VERIFY(!m_table->findChild<QComboBox *>("choice"));
}

void VariablesPanelTest::changesTypes_data()
{
    QTest::addColumn<VarType>("before");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("label");
    QTest::addColumn<VarType>("after");
    QTest::addColumn<QVariant>("converted");
    QTest::newRow("text to int") << VarType::String << QVariant("12") << "整数" << VarType::Int
                                 << QVariant(12);
    QTest::newRow("word to int") << VarType::String << QVariant("x") << "整数" << VarType::Int
                                 << QVariant();
    QTest::newRow("double to text")
        << VarType::Double << QVariant(0.5) << "字符串" << VarType::String << QVariant("0.5");
    QTest::newRow("list to table")
        << VarType::List << QVariant(QVariantList{1}) << "表格" << VarType::Table
        << QVariant(QVariantList{QVariant(QVariantList{1})});
}

void VariablesPanelTest::changesTypes()
{
    QFETCH(VarType, before);
    QFETCH(QVariant, value);
    QFETCH(QString, label);
    addVariable("a", before, value);
    startEditing(0, VariableModel::TypeColumn);
    auto *const box = m_table->findChild<QComboBox *>("choice");
    QVERIFY(box);
    box->setCurrentText(label);
    Q_EMIT box->activated(box->currentIndex());
    QTEST(variable(0).type, "after");
    QTEST(variable(0).value, "converted");
    QCOMPARE(undoSteps(), 1);
    m_bench->document.undo();
    QVERIFY(variable(0).type == before);
    QVERIFY(isSameValue(variable(0).value, value));
}

void VariablesPanelTest::typedTextSurvivesChanges()
{
    addVariable("a", VarType::Int, 1);
    const int step = addStep({});
    CellEdit *const edit = startEditing(0, VariableModel::StartColumn);
    edit->setText("22");
    m_bench->document.change("edit", state().withProperty(step, "sourceText", "x"), {});
    m_values->set("a", 5);
    QCOMPARE(edit->text(), "22");
    QVERIFY(m_panel->commitEditing());
    QCOMPARE(variable(0).value, QVariant(22));
}

void VariablesPanelTest::opensTexts()
{
    addVariable("a", VarType::String, "one\r\ntwo");
    QVERIFY(!startEditing(0, VariableModel::StartColumn));
    auto *const viewer = m_panel->findChild<TextViewer *>();
    QVERIFY(viewer);
    auto *const edit = viewer->findChild<WholeTextEdit *>("viewer.text");
    QCOMPARE(edit->text(), "one\r\ntwo");
    edit->insert("0");
    viewer->accept();
    QCOMPARE(variable(0).value, QVariant("0one\r\ntwo"));
    QCOMPARE(undoSteps(), 1);
    m_bench->document.undo();
    QCOMPARE(variable(0).value, QVariant("one\r\ntwo"));
}

void VariablesPanelTest::opensLists()
{
    addVariable("a", VarType::List, QVariantList{1, 2});
    m_table->setFocus();
    m_table->setCurrentIndex(cell(0, VariableModel::NameColumn));
    QTest::keyClick(m_table, Qt::Key_F4);
    auto *const grid = m_panel->findChild<ListGrid *>();
    QVERIFY(grid);
    auto *const table = grid->findChild<CellTable *>("grid.table");
    QVERIFY(table->model()->setData(table->model()->index(1, 0), "7"));
    QCOMPARE(undoSteps(), 0);
    grid->accept();
    QVERIFY(isSameValue(variable(0).value, QVariantList{1, 7}));
    QCOMPARE(undoSteps(), 1);
}

void VariablesPanelTest::showsCurrentValues()
{
    addVariable("a", VarType::Int, 1);
    m_values->set("a", 2);
    QCOMPARE(shown(0, VariableModel::CurrentColumn), "");
    m_values->hasBegun = true;
    m_values->set("a", 3);
    QCOMPARE(shown(0, VariableModel::CurrentColumn), "3");
    QCOMPARE(shown(0, VariableModel::StartColumn), "1");
}

void VariablesPanelTest::editsCurrentValues()
{
    addVariable("a", VarType::Int, 1);
    m_values->hasBegun = true;
    m_values->set("a", 2);
    typeInto(0, VariableModel::CurrentColumn, "x");
    QVERIFY(!refusal().isEmpty());
    QTest::keyClick(m_table->findChild<CellEdit *>("cell"), Qt::Key_Escape);
    typeInto(0, VariableModel::CurrentColumn, "40");
    QCOMPARE(m_values->values.value("a"), QVariant(40));
    QCOMPARE(variable(0).value, QVariant(1));
    QCOMPARE(shown(0, VariableModel::CurrentColumn), "40");
    // Without a text the empty value, never none at all.
    typeInto(0, VariableModel::CurrentColumn, "");
    QVERIFY(isSameValue(m_values->values.value("a"), 0));
}

void VariablesPanelTest::currentValuesAreFixedWhileRunning()
{
    addVariable("a", VarType::Int, 1);
    m_values->hasBegun = true;
    m_values->set("a", 2);
    CellEdit *const edit = startEditing(0, VariableModel::CurrentColumn);
    QVERIFY(edit);
    edit->setText("3");
    m_values->isPaused = false;
    Q_EMIT m_values->changed();
    QVERIFY(!m_panel->commitEditing());
    QVERIFY(refusal().contains("暂停"));
    QCOMPARE(m_values->values.value("a"), QVariant(2));
    QTest::keyClick(edit, Qt::Key_Escape);
    QTRY_VERIFY(!m_table->findChild<CellEdit *>("cell"));
    QVERIFY(!startEditing(0, VariableModel::CurrentColumn));
}

void VariablesPanelTest::opensCurrentValues()
{
    addVariable("a", VarType::String, "x");
    m_values->hasBegun = true;
    m_values->set("a", "y\n");
    m_table->setFocus();
    m_table->setCurrentIndex(cell(0, VariableModel::NameColumn));
    QTest::keyClick(m_table, Qt::Key_F4);
    auto *const viewer = m_panel->findChild<TextViewer *>();
    QVERIFY(viewer);
    viewer->findChild<WholeTextEdit *>("viewer.text")->replaceText("z");
    m_values->isPaused = false;
    viewer->accept();
    QVERIFY(viewer->isVisible());
    QCOMPARE(m_values->values.value("a"), QVariant("y\n"));
    m_values->isPaused = true;
    viewer->accept();
    QCOMPARE(m_values->values.value("a"), QVariant("z"));
    QCOMPARE(variable(0).value, QVariant("x"));
}

void VariablesPanelTest::marksWhatWasWritten()
{
    addVariable("a", VarType::Int);
    addVariable("b", VarType::Int);
    m_values->hasBegun = true;
    m_values->lastWritten = QStringList{"b"};
    Q_EMIT m_values->changed();
    const QColor mark = Shades::of(m_panel->palette()).written;
    const auto background = [this](int row, int column) {
        return cell(row, column).data(Qt::BackgroundRole).value<QColor>();
    };
    QCOMPARE(background(1, VariableModel::CurrentColumn), mark);
    QVERIFY(!background(0, VariableModel::CurrentColumn).isValid());
    QVERIFY(!background(1, VariableModel::StartColumn).isValid());
    m_values->lastWritten.clear();
    Q_EMIT m_values->changed();
    QVERIFY(!background(1, VariableModel::CurrentColumn).isValid());
}

void VariablesPanelTest::showsUnusedNamesQuietly()
{
    addVariable("used", VarType::String, "x");
    addVariable("other", VarType::String, "x");
    addStep({{"sourceText", "$used"}, {"resultVar", "used"}});
    m_bench->check.update();
    const auto foreground = [this](int row) {
        return cell(row, VariableModel::NameColumn).data(Qt::ForegroundRole);
    };
    QVERIFY(!foreground(0).isValid());
    QVERIFY(foreground(1).isValid());
}

void VariablesPanelTest::goesToAPlace()
{
    addVariable("a", VarType::Int);
    const int second = addVariable("b", VarType::Int);
    m_bench->place.goTo({0, {}, second});
    QCOMPARE(m_table->currentIndex().row(), 1);
    QVERIFY(m_table->hasFocus());
    m_bench->place.goTo({0, {}, 0});
    QCOMPARE(m_table->currentIndex().row(), 1);
}

void VariablesPanelTest::undoGoesToTheVariable()
{
    addVariable("a", VarType::Int, 1);
    addVariable("b", VarType::Int);
    typeInto(0, VariableModel::StartColumn, "2");
    m_table->setCurrentIndex(cell(1, 0));
    m_bench->document.undo();
    QCOMPARE(m_table->currentIndex().row(), 0);
}

void VariablesPanelTest::copiesValues()
{
    addVariable("a", VarType::List, QVariantList{1, "x"});
    m_table->setFocus();
    m_table->setCurrentIndex(cell(0, VariableModel::StartColumn));
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), R"([1,"x"])");
    m_table->setCurrentIndex(cell(0, VariableModel::NameColumn));
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "a");
}

void VariablesPanelTest::actionsFollowTheSelection()
{
    const auto isEnabled = [this](const char *name) {
        return m_panel->findChild<QAction *>(QStringLiteral("variables.") + name)->isEnabled();
    };
    QVERIFY(isEnabled("add"));
    QVERIFY(!isEnabled("delete"));
    addVariable("a", VarType::Int);
    addVariable("b", VarType::Int);
    m_table->setCurrentIndex(cell(0, 0));
    QVERIFY(isEnabled("delete"));
    QVERIFY(!isEnabled("up"));
    QVERIFY(isEnabled("down"));
    m_table->setCurrentIndex(cell(1, 0));
    QVERIFY(isEnabled("up"));
    QVERIFY(!isEnabled("down"));
    m_bench->document.replace({});
    QVERIFY(!isEnabled("delete"));
    QVERIFY(m_panel->actions().size() > 8);
}

void VariablesPanelTest::realRunIsReadyAtFirst()
{
    addVariable("a", VarType::Int, 1);
    const VariablesPanel panel(*m_bench);
    const auto *const model = panel.findChild<CellTable *>("variables.table")->model();
    QCOMPARE(model->index(0, VariableModel::StartColumn).data().toString(), "1");
    const QModelIndex current = model->index(0, VariableModel::CurrentColumn);
    QCOMPARE(current.data().toString(), "");
    QVERIFY(!(current.flags() & Qt::ItemIsEditable));
}

QTEST_MAIN(VariablesPanelTest)
#include "VariablesPanelTest.moc"
