#include "refhost/workbench/catalog/CatalogPanel.h"
#include "refhost/workbench/catalog/CatalogModel.h"
#include "refhost/workbench/edits/OperationMime.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/StepsFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

/// The catalogue shows what there is, finds it and adds it to the task.
class CatalogPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsTheOperationsInTheirOrder();
    void rowsTellWhatTheyAre();
    void filters_data();
    void filters();
    void enterAddsTheFirstMatch_data();
    void enterAddsTheFirstMatch();
    void doubleClickAddsBehindTheCurrentStep();
    void enterInTheTreeAdds();
    void groupsAddNothing();
    void keysGoBetweenFilterAndTree();
    void escapeClearsTheFilter();
    void dragCarriesTheType();
    void listsWhatFailedToLoad();
    void copiesTheReasonOfAFailure();
    void addsFromTheMenu();
    void reloadingKeepsFilterGroupsAndRow();
    void filteringOpensGroupsForAWhile();
    void tellsThatThereIsNothing_data();
    void tellsThatThereIsNothing();
    void filterCanBeAskedFor();

private:
    void create(const QStringList &plugins);
    QModelIndex row(const QString &name) const;
    QStringList rows() const;
    QString types() const;

    std::unique_ptr<StepsFixture> m_steps;
    std::unique_ptr<CatalogPanel> m_panel;
    QTreeView *m_tree = nullptr;
    QLineEdit *m_filter = nullptr;
};

void CatalogPanelTest::create(const QStringList &plugins)
{
    m_panel.reset();
    m_steps = std::make_unique<StepsFixture>(plugins);
    m_panel = std::make_unique<CatalogPanel>(m_steps->bench);
    m_tree = m_panel->findChild<QTreeView *>("catalog.tree");
    m_filter = m_panel->findChild<QLineEdit *>("catalog.filter");
    m_panel->resize(300, 600);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void CatalogPanelTest::init()
{
    QuietTest::init();
    create({QStringLiteral(PLUGIN_FILE), QStringLiteral(GREET_PLUGIN)});
}

/// The row with that text, invalid when it is not shown.
QModelIndex CatalogPanelTest::row(const QString &name) const
{
    const QAbstractItemModel &model = *m_tree->model();
    return model
        .match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

/// What is in the tree, the groups by their names, the operations by their types.
QStringList CatalogPanelTest::rows() const
{
    QStringList texts;
    const QAbstractItemModel &model = *m_tree->model();
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex group = model.index(i, 0);
        texts.append(group.data().toString());
        for (int j = 0; j < model.rowCount(group); ++j)
            texts.append(model.index(j, 0, group).data(CatalogRole::TypeId).toString());
    }
    return texts;
}

/// The types of the steps of the document.
QString CatalogPanelTest::types() const
{
    QStringList types;
    for (const StepState &step : m_steps->bench.document.state().steps)
        types.append(step.operation->typeId());
    return types.join(",");
}

void CatalogPanelTest::listsTheOperationsInTheirOrder()
{
    QStringList expected;
    QString root;
    for (const CatalogEntry &entry : m_steps->bench.library.catalog().entries()) {
        if (entry.root != root)
            expected.append(entry.root);
        root = entry.root;
        expected.append(entry.typeId);
    }
    QCOMPARE(rows(), expected);
    QVERIFY(expected.contains("greet.hello"));
    QVERIFY(m_tree->isExpanded(m_tree->model()->index(0, 0)));
}

void CatalogPanelTest::rowsTellWhatTheyAre()
{
    const QModelIndex append = row("添加文本");
    QCOMPARE(append.data(CatalogRole::TypeId), QVariant("text.append"));
    QCOMPARE(append.data(CatalogRole::Second), QVariant("text.append"));
    QVERIFY(!append.data(Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(append.data(Qt::ToolTipRole).toString().contains("text.append"));
}

void CatalogPanelTest::filters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("name") << "添加文本"
                          << "text.append";
    QTest::newRow("part of a name") << "问候"
                                    << "greet.hello";
    QTest::newRow("identifier") << "hello"
                                << "greet.hello";
    QTest::newRow("in capitals") << "GREET.HELLO"
                                 << "greet.hello";
    QTest::newRow("label") << "问候谁"
                           << "greet.hello";
    QTest::newRow("words") << "greet  谁"
                           << "greet.hello";
    QTest::newRow("not the words") << "greet append"
                                   << "";
    QTest::newRow("nothing") << "no such operation"
                             << "";
    QTest::newRow("across name and identifier") << "问候greet"
                                                << "";
}

void CatalogPanelTest::filters()
{
    QFETCH(QString, text);
    QFETCH(QString, found);
    m_filter->insert(text);
    QStringList types = rows();
    // What remains besides is the group.
    if (!types.isEmpty())
        types.removeFirst();
    QCOMPARE(types.join(","), found);
    m_filter->clear();
    QVERIFY(rows().size() > 10);
}

void CatalogPanelTest::enterAddsTheFirstMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("added");
    QTest::newRow("name") << "trim"
                          << "text.trim";
    QTest::newRow("no filter") << ""
                               << "greet.hello";
    QTest::newRow("label") << "问候谁"
                           << "greet.hello";
    QTest::newRow("nothing") << "nothing"
                             << "";
}

void CatalogPanelTest::enterAddsTheFirstMatch()
{
    QFETCH(QString, text);
    m_filter->setText(text);
    QTest::keyClick(m_filter, Qt::Key_Return);
    QTEST(types(), "added");
}

void CatalogPanelTest::doubleClickAddsBehindTheCurrentStep()
{
    m_steps->open({"a", "b"});
    m_steps->bench.place.setStep(m_steps->id(0));
    QSignalSpy wanted(&m_steps->bench.place, &CurrentPlace::wanted);
    const QPoint place = m_tree->visualRect(row("添加文本")).center();
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(types(), "text.append,text.append");
    QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_steps->sources(), "a,,b");
    QCOMPARE(m_steps->bench.place.step(), m_steps->id(1));
    QCOMPARE(wanted.count(), 1);
    const auto edited = wanted.first().first().value<EditPlace>();
    QCOMPARE(edited, (EditPlace{m_steps->id(1), "sourceText", 0}));
    QCOMPARE(m_steps->bench.document.undoStack().undoText(), "添加步骤“添加文本”");
    m_steps->bench.document.undo();
    QCOMPARE(m_steps->sources(), "a,b");
    m_steps->bench.document.redo();
    QCOMPARE(m_steps->sources(), "a,,b");
}

void CatalogPanelTest::enterInTheTreeAdds()
{
    m_tree->setCurrentIndex(row("添加文本"));
    QTest::keyClick(m_tree, Qt::Key_Enter);
    QCOMPARE(types(), "text.append");
}

void CatalogPanelTest::groupsAddNothing()
{
    const QModelIndex group = m_tree->model()->index(0, 0);
    m_tree->setCurrentIndex(group);
    QTest::keyClick(m_tree, Qt::Key_Return);
    QVERIFY(!m_tree->isExpanded(group));
    QTest::keyClick(m_tree, Qt::Key_Return);
    QVERIFY(m_tree->isExpanded(group));
    QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualRect(group).center());
    QCOMPARE(types(), "");
}

void CatalogPanelTest::keysGoBetweenFilterAndTree()
{
    m_filter->setFocus();
    QTest::keyClicks(m_filter, "trim");
    QTest::keyClick(m_filter, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), m_tree);
    QCOMPARE(m_tree->currentIndex().data(CatalogRole::TypeId), QVariant("text.trim"));
    QTest::keyClick(m_tree, Qt::Key_Up);
    QTest::keyClick(m_tree, Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), m_filter);
}

void CatalogPanelTest::escapeClearsTheFilter()
{
    m_filter->setText("trim");
    QTest::keyClick(m_filter, Qt::Key_Escape);
    QCOMPARE(m_filter->text(), "");
}

void CatalogPanelTest::dragCarriesTheType()
{
    const QAbstractItemModel &model = *m_tree->model();
    const QModelIndex append = row("添加文本");
    QVERIFY(append.flags().testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(!append.parent().flags().testFlag(Qt::ItemIsDragEnabled));
    const std::unique_ptr<QMimeData> mime(model.mimeData({append}));
    QCOMPARE(operationFromMime(*mime), "text.append");
    QVERIFY(!mime->hasText());
    QVERIFY(m_tree->dragEnabled());
}

void CatalogPanelTest::listsWhatFailedToLoad()
{
    create({QStringLiteral(PLUGIN_FILE), QStringLiteral("/nowhere/libLost.so")});
    const QModelIndex group = row("未能加载");
    QCOMPARE(group.row(), m_tree->model()->rowCount() - 1);
    const QModelIndex lost = row("libLost.so");
    QCOMPARE(lost.parent(), group);
    QVERIFY(lost.data(CatalogRole::Second).toString().contains("no such file"));
    QVERIFY(lost.data(Qt::ToolTipRole).toString().contains("/nowhere/libLost.so"));
    m_tree->setCurrentIndex(lost);
    QTest::keyClick(m_tree, Qt::Key_Return);
    QCOMPARE(types(), "");
    m_filter->setText("lost");
    QCOMPARE(rows(), QStringList({"未能加载", ""}));
    QTest::keyClick(m_filter, Qt::Key_Return);
    QCOMPARE(types(), "");
}

void CatalogPanelTest::copiesTheReasonOfAFailure()
{
    create({QStringLiteral("/nowhere/libLost.so")});
    Q_EMIT m_tree->customContextMenuRequested(m_tree->visualRect(row("libLost.so")).center());
    auto *const menu = m_panel->findChild<QMenu *>("catalog.menu");
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    menu->actions().first()->trigger();
    QVERIFY(QApplication::clipboard()->text().startsWith("/nowhere/libLost.so\n"));
    menu->close();
    Q_EMIT m_tree->customContextMenuRequested(m_tree->visualRect(row("未能加载")).center());
    QTRY_VERIFY(!m_panel->findChild<QMenu *>("catalog.menu"));
}

void CatalogPanelTest::addsFromTheMenu()
{
    m_tree->setCurrentIndex(row("添加文本"));
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {1, 1});
    QApplication::sendEvent(m_tree, &key);
    auto *const menu = m_panel->findChild<QMenu *>("catalog.menu");
    QVERIFY(menu);
    menu->actions().first()->trigger();
    menu->close();
    QCOMPARE(types(), "text.append");
}

void CatalogPanelTest::reloadingKeepsFilterGroupsAndRow()
{
    const auto group = [this](int number) { return m_tree->model()->index(number, 0); };
    const QStringList before = rows();
    m_tree->collapse(group(0));
    m_tree->setCurrentIndex(row("添加文本"));
    Q_EMIT m_steps->bench.library.reloaded();
    QCOMPARE(rows(), before);
    QVERIFY(!m_tree->isExpanded(group(0)));
    QVERIFY(m_tree->isExpanded(group(1)));
    QCOMPARE(m_tree->currentIndex(), row("添加文本"));
    m_tree->collapse(group(1));
    Q_EMIT m_steps->bench.library.reloaded();
    QVERIFY(!m_tree->isExpanded(group(1)));
    m_filter->setText("trim");
    const QStringList found = rows();
    Q_EMIT m_steps->bench.library.reloaded();
    QCOMPARE(m_filter->text(), "trim");
    QCOMPARE(rows(), found);
    QVERIFY(m_tree->isExpanded(group(0)));
}

void CatalogPanelTest::filteringOpensGroupsForAWhile()
{
    m_tree->collapse(m_tree->model()->index(0, 0));
    m_filter->setText("trim");
    QVERIFY(m_tree->isExpanded(m_tree->model()->index(0, 0)));
    m_filter->clear();
    QVERIFY(!m_tree->isExpanded(m_tree->model()->index(0, 0)));
    QVERIFY(m_tree->isExpanded(m_tree->model()->index(1, 0)));
}

void CatalogPanelTest::tellsThatThereIsNothing_data()
{
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("hint");
    const QStringList plugin{QStringLiteral(PLUGIN_FILE)};
    QTest::newRow("no plug-in") << QStringList() << ""
                                << "没有加载任何插件";
    QTest::newRow("no match") << plugin << "nothing"
                              << "没有匹配的操作";
    QTest::newRow("something") << plugin << ""
                               << "";
}

void CatalogPanelTest::tellsThatThereIsNothing()
{
    QFETCH(QStringList, plugins);
    QFETCH(QString, filter);
    create(plugins);
    m_filter->setText(filter);
    const auto *const hint = m_tree->findChild<QLabel *>("catalog.hint");
    QTEST(hint->isVisible() ? hint->text() : QString(""), "hint");
}

void CatalogPanelTest::filterCanBeAskedFor()
{
    m_tree->setFocus();
    m_panel->focusFilter();
    QCOMPARE(QApplication::focusWidget(), m_filter);
}

QTEST_MAIN(CatalogPanelTest)
#include "CatalogPanelTest.moc"
