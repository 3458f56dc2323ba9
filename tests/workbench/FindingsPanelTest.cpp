#include "refhost/workbench/run/FindingsPanel.h"

#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

/// The panel lists the likely mistakes and leads to them.
class FindingsPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsThatThereIsNothing();
    void listsFindings();
    void explainsTheCurrentOne();
    void leadsToFieldsAndVariables();
    void keepsTheCurrentOneWhileItStays();

private:
    QString cell(int row, int column) const
    {
        return m_view->model()->index(row, column).data().toString();
    }
    void click(int row);

    std::unique_ptr<RunBench> m_bench;
    std::unique_ptr<FindingsPanel> m_panel;
    QTreeView *m_view = nullptr;
};

void FindingsPanelTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<RunBench>();
    m_panel = std::make_unique<FindingsPanel>(m_bench->bench);
    m_panel->resize(700, 300);
    m_panel->show();
    m_view = m_panel->findChild<QTreeView *>("findings.table");
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void FindingsPanelTest::cleanup()
{
    m_panel.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

void FindingsPanelTest::click(int row)
{
    const QModelIndex index = m_view->model()->index(row, 2);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, m_view->visualRect(index).center());
}

void FindingsPanelTest::tellsThatThereIsNothing()
{
    auto *const nothing = m_panel->findChild<QLabel *>("findings.nothing");
    QVERIFY(nothing->isVisible());
    QCOMPARE(nothing->text(), "没有发现问题");
    const int id = m_bench->addStep("text.append", {});
    QTRY_VERIFY(!nothing->isVisible());
    QVERIFY(m_view->isVisible());
    m_bench->removeStep(id);
    QTRY_VERIFY(nothing->isVisible());
}

void FindingsPanelTest::listsFindings()
{
    m_bench->addVariable("unused", VarType::String);
    m_bench->addVariable("r", VarType::String);
    m_bench->addAppend("a");
    m_bench->addStep("text.append", {{"sourceText", "$gone"}, {"resultVar", "r"}});
    m_bench->bench.check.update();
    const QList<Finding> &findings = m_bench->bench.check.findings();
    QCOMPARE(m_view->model()->rowCount(), findings.size());
    QStringList rows;
    for (int row = 0; row < findings.size(); ++row) {
        rows.append(cell(row, 0) + " " + cell(row, 1));
        QCOMPARE(cell(row, 2), findings.at(row).message);
    }
    QVERIFY(rows.contains("2 原文本"));
    QVERIFY(rows.contains(" unused"));
    const QString tip = m_view->model()->index(0, 2).data(Qt::ToolTipRole).toString();
    QVERIFY(tip.contains(findings.first().remedy.toHtmlEscaped()));
}

void FindingsPanelTest::explainsTheCurrentOne()
{
    m_bench->addStep("text.append", {{"sourceText", "$gone"}});
    m_bench->bench.check.update();
    auto *const explanation = m_panel->findChild<QLabel *>("findings.explanation");
    QVERIFY(!explanation->isVisible());
    click(0);
    const Finding &finding = m_bench->bench.check.findings().first();
    QVERIFY(explanation->isVisible());
    QCOMPARE(explanation->text(),
             QStringList({finding.message, finding.consequence, finding.remedy}).join("\n"));
}

void FindingsPanelTest::leadsToFieldsAndVariables()
{
    const int variable = m_bench->addVariable("unused", VarType::String);
    const int id = m_bench->addStep("text.append", {{"sourceText", "a"}});
    m_bench->bench.check.update();
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    QVector<EditPlace> places;
    for (int row = 0; row < m_view->model()->rowCount(); ++row) {
        click(row);
        places.append(wanted.last().first().value<EditPlace>());
    }
    QVERIFY(places.contains({id, "resultVar", 0}));
    QVERIFY(places.contains({0, {}, variable}));
    const int count = wanted.count();
    m_view->setFocus();
    QTest::keyClick(m_view, Qt::Key_Home);
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(wanted.count(), count + 1);
}

void FindingsPanelTest::keepsTheCurrentOneWhileItStays()
{
    const int id = m_bench->addStep("text.append", {{"sourceText", "a"}});
    m_bench->bench.check.update();
    click(0);
    m_bench->document.change("edit", m_bench->document.state().withProperty(id, "sourceText", "b"),
                             {});
    m_bench->bench.check.update();
    QCOMPARE(m_view->currentIndex().row(), 0);
}

QTEST_MAIN(FindingsPanelTest)
#include "FindingsPanelTest.moc"
