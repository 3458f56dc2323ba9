#include "refhost/workbench/variables/ListGrid.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/CellRules.h"
#include "refhost/workbench/variables/CellTable.h"
#include "refhost/workbench/variables/GridModel.h"
#include "refhost/workbench/variables/TextViewer.h"
#include "refhost/workbench/variables/WholeTextEdit.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/CellTyping.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

namespace {

constexpr int patience = 3000; ///< milliseconds, on a machine that has other things to do

QVariant row(const QVariantList &cells)
{
    return cells;
}

/// A table with a cell of each kind and rows of different length.
QVariantList raggedTable()
{
    return {row({"a", 1, 2.0}), row({}), row({true, qlonglong(9007199254740993)}),
            row({"x", row({1, 2.0}), "007", "end"})};
}

} // namespace

/// Lists and tables are edited cell by cell; what is not edited stays exactly what it was.
class ListGridTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsKindsAndMissingCells();
    void editsCells_data();
    void editsCells();
    void refusesWhatDoesNotFit();
    void editsMissingCells();
    void keepsWhatIsNotEdited();
    void addsRemovesAndMovesRows();
    void addsAndRemovesColumns();
    void cutsRowsOff();
    void changesKinds();
    void clearsCells();
    void pastesABlock();
    void pastesIntoLists();
    void copiesABlock();
    void undoesEveryEdit();
    void opensTextsAndLists();
    void startsWithNothing();
    void okIsOneCallAndCancelNone();
    void okWaitsForRefusedText();
    void escapeAsksOnce();
    void isReadOnlyWithoutASetter();
    void showsAnythingInATable();
    void opensAMillionRows_data();
    void opensAMillionRows();

private:
    void open(VarType type, const QVariant &value, bool readOnly = false);
    QModelIndex cell(int row, int column) const { return m_table->model()->index(row, column); }
    QVariant value(int row, int column) const { return m_model->value(cell(row, column)); }
    QVariantList rows() const { return m_grid->value().toList(); }
    CellEdit *startEditing(int row, int column) { return ::startEditing(*m_table, row, column); }
    void typeInto(int row, int column, const QString &text)
    {
        ::typeInto(*m_table, row, column, text);
    }
    void trigger(const char *action);
    void select(int top, int left, int bottom, int right);

    QPointer<ListGrid> m_grid;
    CellTable *m_table = nullptr;
    GridModel *m_model = nullptr;
    QVariant m_taken;
    int m_calls = 0;
};

void ListGridTest::init()
{
    QuietTest::init();
    m_taken = {};
    m_calls = 0;
}

void ListGridTest::cleanup()
{
    delete m_grid;
    QuietTest::cleanup();
}

void ListGridTest::open(VarType type, const QVariant &value, bool readOnly)
{
    ValueSetter setter;
    if (!readOnly) {
        setter = [this](const QVariant &taken) {
            m_taken = taken;
            ++m_calls;
            return QString();
        };
    }
    m_grid = new ListGrid("a", type, value, setter, nullptr);
    m_table = m_grid->findChild<CellTable *>("grid.table");
    m_model = qobject_cast<GridModel *>(m_table->model());
    m_grid->open();
    m_grid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_grid));
}

void ListGridTest::trigger(const char *action)
{
    m_grid->findChild<QAction *>(QStringLiteral("grid.") + action)->trigger();
}

void ListGridTest::select(int top, int left, int bottom, int right)
{
    m_table->setCurrentIndex(cell(top, left));
    m_table->selectionModel()->select({cell(top, left), cell(bottom, right)},
                                      QItemSelectionModel::ClearAndSelect);
}

void ListGridTest::showsKindsAndMissingCells()
{
    open(VarType::Table, raggedTable());
    QCOMPARE(m_model->rowCount(), 4);
    QCOMPARE(m_model->columnCount(), 4);
    QCOMPARE(cell(0, 1).data().toString(), "1");
    QCOMPARE(cell(0, 1).data(DetailRole).toString(), "整数");
    QCOMPARE(cell(0, 2).data(DetailRole).toString(), "小数");
    QCOMPARE(cell(2, 0).data().toString(), "true");
    QCOMPARE(cell(2, 1).data().toString(), "9007199254740993");
    QCOMPARE(cell(3, 1).data().toString(), "[1, 2]");
    QCOMPARE(cell(3, 2).data(DetailRole).toString(), "");
    QVERIFY(!m_model->isThere(cell(1, 0)));
    QVERIFY(cell(1, 0).data(Qt::BackgroundRole).isValid());
    QVERIFY(!cell(0, 0).data(Qt::BackgroundRole).isValid());
    QCOMPARE(m_grid->findChild<QLabel *>("grid.size")->text(), "4 行，4 列");
    QVERIFY(!m_grid->isModified());
}

void ListGridTest::editsCells_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("text") << QVariant("a") << "12" << QVariant("12");
    QTest::newRow("int") << QVariant(1) << "12" << QVariant(12);
    QTest::newRow("int of 64 bits")
        << QVariant(1) << "9007199254740993" << QVariant(qlonglong(9007199254740993));
    QTest::newRow("double") << QVariant(1.0) << "12" << QVariant(12.0);
    QTest::newRow("emptied text") << QVariant("a") << "" << QVariant("");
}

void ListGridTest::editsCells()
{
    QFETCH(QVariant, before);
    QFETCH(QString, typed);
    QFETCH(QVariant, after);
    open(VarType::List, QVariantList{before, "other"});
    typeInto(0, 0, typed);
    QVERIFY2(isSameValue(value(0, 0), after), qPrintable(valueWords(value(0, 0))));
    QVERIFY(isSameValue(value(1, 0), "other"));
    trigger("undo");
    QVERIFY(isSameValue(value(0, 0), before));
}

void ListGridTest::refusesWhatDoesNotFit()
{
    open(VarType::List, QVariantList{1});
    typeInto(0, 0, "x");
    auto *const bubble = m_grid->findChild<QLabel *>("refusal");
    QVERIFY(bubble && bubble->isVisible());
    auto *const edit = m_table->findChild<CellEdit *>("cell");
    QCOMPARE(edit->text(), "x");
    QVERIFY(isSameValue(value(0, 0), 1));
    edit->setText("2");
    QVERIFY(!bubble->isVisible());
    QVERIFY(m_table->commitEditing());
    QVERIFY(isSameValue(value(0, 0), 2));
}

void ListGridTest::editsMissingCells()
{
    open(VarType::Table, raggedTable());
    typeInto(2, 3, "new");
    QVERIFY(isSameValue(rows().at(2), row({true, qlonglong(9007199254740993), "", "new"})));
    QVERIFY(isSameValue(rows().at(1), row({})));
    // Opened and left, a cell stays away.
    CellEdit *const edit = startEditing(1, 2);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(isSameValue(rows().at(1), row({})));
}

void ListGridTest::keepsWhatIsNotEdited()
{
    open(VarType::Table, raggedTable());
    typeInto(0, 0, "b");
    m_grid->accept();
    QVariantList expected = raggedTable();
    expected[0] = row({"b", 1, 2.0});
    QVERIFY(isSameValue(m_taken, expected));
}

void ListGridTest::addsRemovesAndMovesRows()
{
    open(VarType::List, QVariantList{1, 2, 3});
    m_table->setCurrentIndex(cell(0, 0));
    trigger("addRow");
    QVERIFY(isSameValue(rows(), QVariantList{1, "", 2, 3}));
    QCOMPARE(m_table->currentIndex().row(), 1);
    trigger("removeRows");
    QVERIFY(isSameValue(rows(), QVariantList{1, 2, 3}));
    select(1, 0, 2, 0);
    trigger("up");
    QVERIFY(isSameValue(rows(), QVariantList{2, 3, 1}));
    trigger("up");
    QVERIFY(isSameValue(rows(), QVariantList{2, 3, 1}));
    trigger("down");
    QVERIFY(isSameValue(rows(), QVariantList{1, 2, 3}));
    select(0, 0, 2, 0);
    trigger("removeRows");
    QVERIFY(rows().isEmpty());
    trigger("addRow");
    QVERIFY(isSameValue(rows(), QVariantList{""}));
}

void ListGridTest::addsAndRemovesColumns()
{
    open(VarType::Table, raggedTable());
    m_table->setCurrentIndex(cell(0, 1));
    trigger("addColumn");
    QVERIFY(isSameValue(rows().at(0), row({"a", 1, "", 2.0})));
    QVERIFY(isSameValue(rows().at(1), row({})));
    QVERIFY(isSameValue(rows().at(2), row({true, qlonglong(9007199254740993), ""})));
    QCOMPARE(m_model->columnCount(), 5);
    m_table->setCurrentIndex(cell(0, 2));
    trigger("removeColumns");
    QVERIFY(isSameValue(rows(), raggedTable()));
    QCOMPARE(m_model->columnCount(), 4);
}

void ListGridTest::cutsRowsOff()
{
    open(VarType::Table, raggedTable());
    m_table->setCurrentIndex(cell(3, 1));
    trigger("cutOff");
    QVERIFY(isSameValue(rows().at(3), row({"x"})));
    QVERIFY(!m_model->isThere(cell(3, 1)));
    trigger("undo");
    QVERIFY(isSameValue(rows(), raggedTable()));
}

void ListGridTest::changesKinds()
{
    open(VarType::Table, QVariantList{row({"1", "2.5"}), row({"x"}), row({3, true})});
    select(0, 0, 2, 1);
    auto *const kind = m_grid->findChild<QComboBox *>("grid.kind");
    QCOMPARE(kind->currentIndex(), int(CellKind::Text));
    Q_EMIT kind->activated(int(CellKind::Double));
    QVERIFY(isSameValue(rows(), QVariantList({row({1.0, 2.5}), row({0.0}), row({3.0, 1.0})})));
    QCOMPARE(kind->currentIndex(), int(CellKind::Double));
    trigger("undo");
    QVERIFY(isSameValue(rows(), QVariantList({row({"1", "2.5"}), row({"x"}), row({3, true})})));
}

void ListGridTest::clearsCells()
{
    open(VarType::Table, raggedTable());
    select(0, 0, 1, 3);
    m_table->setFocus();
    QTest::keyClick(m_table, Qt::Key_Delete);
    QVERIFY(isSameValue(rows().at(0), row({"", 0, 0.0})));
    QVERIFY(isSameValue(rows().at(1), row({})));
    QVERIFY(isSameValue(rows().at(2), raggedTable().at(2)));
}

void ListGridTest::pastesABlock()
{
    open(VarType::Table, raggedTable());
    m_table->setFocus();
    m_table->setCurrentIndex(cell(2, 1));
    QApplication::clipboard()->setText("5\t007\r\n\"two\nlines\"\tx\r\n6\r\n");
    QTest::keyClick(m_table, Qt::Key_V, Qt::ControlModifier);
    QVERIFY(isSameValue(rows().at(0), raggedTable().at(0)));
    QVERIFY(isSameValue(rows().at(2), row({true, 5, "007"})));
    QVERIFY(isSameValue(rows().at(3), row({"x", "two\nlines", "x", "end"})));
    QVERIFY(isSameValue(rows().at(4), row({"", "6"})));
    trigger("undo");
    QVERIFY(isSameValue(rows(), raggedTable()));
}

void ListGridTest::pastesIntoLists()
{
    open(VarType::List, QVariantList{});
    QApplication::clipboard()->setText("a\tb\nc\n");
    trigger("paste");
    QVERIFY(isSameValue(rows(), QVariantList{"a", "c"}));
}

void ListGridTest::copiesABlock()
{
    open(VarType::Table, raggedTable());
    m_table->setFocus();
    select(2, 0, 3, 3);
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             "true\t9007199254740993\t\t\nx\t[1,2.0]\t007\tend\n");
    select(0, 1, 0, 1);
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "1");
}

void ListGridTest::undoesEveryEdit()
{
    open(VarType::Table, raggedTable());
    m_table->setFocus();
    QVector<QVariantList> states{rows()};
    for (const char *const action :
         {"addRow", "down", "addColumn", "removeRows", "clear", "cutOff", "removeColumns"}) {
        m_table->setCurrentIndex(cell(0, 1));
        trigger(action);
        states.append(rows());
    }
    for (int i = states.size() - 1; i >= 0; --i) {
        QVERIFY(isSameValue(rows(), states.at(i)));
        QTest::keyClick(m_table, Qt::Key_Z, Qt::ControlModifier);
    }
    for (const QVariantList &state : qAsConst(states)) {
        QVERIFY(isSameValue(rows(), state));
        trigger("redo");
    }
}

void ListGridTest::opensTextsAndLists()
{
    open(VarType::List, QVariantList{"a\r\nb", row({1, qlonglong(2)}), 3});
    QVERIFY(!startEditing(0, 0));
    auto *const viewer = m_grid->findChild<TextViewer *>();
    QVERIFY(viewer);
    viewer->findChild<WholeTextEdit *>("viewer.text")->insert("x");
    viewer->accept();
    QVERIFY(isSameValue(value(0, 0), "xa\r\nb"));
    m_table->setCurrentIndex(cell(1, 0));
    trigger("open");
    auto *const inner = m_grid->findChild<ListGrid *>();
    QVERIFY(inner);
    auto *const model = inner->findChild<CellTable *>("grid.table")->model();
    QVERIFY(model->setData(model->index(0, 0), "7"));
    inner->accept();
    QVERIFY(isSameValue(value(1, 0), row({7, qlonglong(2)})));
    trigger("undo");
    trigger("undo");
    QVERIFY(isSameValue(rows(), QVariantList({"a\r\nb", row({1, qlonglong(2)}), 3})));
}

void ListGridTest::startsWithNothing()
{
    open(VarType::Table, {});
    QCOMPARE(m_model->rowCount(), 0);
    for (const char *const action : {"removeRows", "up", "down", "removeColumns", "cutOff", "clear",
                                     "copy", "undo", "redo", "open"})
        trigger(action);
    trigger("addRow");
    typeInto(0, 0, "x");
    m_grid->accept();
    QVERIFY(isSameValue(m_taken, QVariantList{row({"x"})}));
}

void ListGridTest::okIsOneCallAndCancelNone()
{
    open(VarType::List, QVariantList{1});
    m_grid->accept();
    QCOMPARE(m_calls, 0);
    QTRY_VERIFY(!m_grid);

    open(VarType::List, QVariantList{1});
    typeInto(0, 0, "2");
    trigger("addRow");
    QTest::keyClick(m_grid, Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!m_grid);
    QCOMPARE(m_calls, 1);
    QVERIFY(isSameValue(m_taken, QVariantList{2, ""}));

    open(VarType::List, QVariantList{1});
    typeInto(0, 0, "2");
    m_grid->findChild<QWidget *>("value.cancel")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(!m_grid);
    QCOMPARE(m_calls, 1);
}

void ListGridTest::okWaitsForRefusedText()
{
    open(VarType::List, QVariantList{1});
    CellEdit *const edit = startEditing(0, 0);
    edit->setText("x");
    m_grid->accept();
    QVERIFY(m_grid->isVisible());
    QCOMPARE(m_calls, 0);
    edit->setText("5");
    m_grid->accept();
    QVERIFY(isSameValue(m_taken, QVariantList{5}));
}

void ListGridTest::escapeAsksOnce()
{
    open(VarType::List, QVariantList{1});
    typeInto(0, 0, "2");
    m_grid->reject();
    QVERIFY(m_grid->isVisible());
    QVERIFY(m_grid->findChild<QLabel *>("value.message")->isVisible());
    m_grid->reject();
    QTRY_VERIFY(!m_grid);
    QCOMPARE(m_calls, 0);
}

void ListGridTest::isReadOnlyWithoutASetter()
{
    open(VarType::List, QVariantList{1}, true);
    QVERIFY(!startEditing(0, 0));
    QVERIFY(!m_grid->findChild<QAction *>("grid.addRow"));
    trigger("copy");
    QCOMPARE(QApplication::clipboard()->text(), "1");
    m_grid->reject();
    QTRY_VERIFY(!m_grid);
}

void ListGridTest::showsAnythingInATable()
{
    open(VarType::Table, QVariantList{1, row({2}), QVariant()}, true);
    m_grid->grab();
    QCOMPARE(m_model->columnCount(), 1);
    QVERIFY(isSameValue(rows(), QVariantList({1, row({2}), QVariant()})));
}

void ListGridTest::opensAMillionRows_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::newRow("list") << false;
    QTest::newRow("table") << true;
}

void ListGridTest::opensAMillionRows()
{
    QFETCH(bool, isTable);
    QVariantList many;
    for (int i = 0; i < 1000000; ++i)
        many.append(isTable ? row({i, "x"}) : QVariant(i));
    QElapsedTimer clock;
    clock.start();
    open(isTable ? VarType::Table : VarType::List, many);
    m_grid->grab();
    QVERIFY2(clock.elapsed() < patience, qPrintable(QString::number(clock.elapsed())));
    clock.restart();
    QScrollBar *const bar = m_table->verticalScrollBar();
    for (int i = 0; i <= 20; ++i) {
        bar->setValue(static_cast<int>(qint64(bar->maximum()) * i / 20));
        m_table->grab();
    }
    typeInto(999999, 0, "7");
    QVERIFY(isSameValue(value(999999, 0), 7));
    QVERIFY2(clock.elapsed() < patience, qPrintable(QString::number(clock.elapsed())));
}

QTEST_MAIN(ListGridTest)
#include "ListGridTest.moc"
