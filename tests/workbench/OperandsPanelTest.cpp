#include "refhost/workbench/run/OperandsPanel.h"

#include "refhost/workbench/look/Shades.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/RunBench.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

/// The panel shows what the current step found and did when it ran last.
class OperandsPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsThatAStepHasNotRun();
    void showsOperandsAndWrites();
    void showsWarningsAndTheirFields();
    void showsWhatIsNoNumber();
    void tellsThatAStepWasEdited();
    void leadsToFieldsAndVariables();
    void copiesAWholeValue();
    void followsThePalette();

private:
    QString status() const { return m_panel->findChild<QLabel *>("operands.status")->text(); }
    QStringList rows() const;
    QTreeWidgetItem *item(const QString &name) const;
    void doubleClick(QTreeWidgetItem *item);
    void settle() { QTest::qWait(1); }

    std::unique_ptr<RunBench> m_bench;
    std::unique_ptr<OperandsPanel> m_panel;
    QTreeWidget *m_view = nullptr;
};

void OperandsPanelTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<RunBench>();
    m_bench->addVariable("r", VarType::String, "-\n");
    m_panel = std::make_unique<OperandsPanel>(m_bench->bench);
    m_panel->resize(700, 400);
    m_panel->show();
    m_view = m_panel->findChild<QTreeWidget *>("operands.table");
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void OperandsPanelTest::cleanup()
{
    m_panel.reset();
    m_bench.reset();
    QuietTest::cleanup();
}

QStringList OperandsPanelTest::rows() const
{
    QStringList lines;
    for (QTreeWidgetItemIterator it(m_view); *it; ++it) {
        if ((*it)->parent())
            lines.append((*it)->text(0) + "|" + (*it)->text(1) + "|" + (*it)->text(2));
    }
    return lines;
}

QTreeWidgetItem *OperandsPanelTest::item(const QString &name) const
{
    return m_view->findItems(name, Qt::MatchContains | Qt::MatchRecursive).value(0);
}

void OperandsPanelTest::doubleClick(QTreeWidgetItem *item)
{
    const QPoint center = m_view->visualItemRect(item).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, center);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, center);
}

void OperandsPanelTest::tellsThatAStepHasNotRun()
{
    QCOMPARE(status(), "没有选中步骤");
    const int id = m_bench->addAppend("a");
    m_bench->bench.place.setStep(id);
    settle();
    QCOMPARE(status(), "此步骤还没有运行");
    QVERIFY(!m_view->isVisible());
}

void OperandsPanelTest::showsOperandsAndWrites()
{
    const int id = m_bench->addAppend("007");
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    settle();
    QVERIFY(status().startsWith("用时 "));
    QVERIFY(m_view->isVisible());
    QCOMPARE(rows(),
             (QStringList{R"(原文本|"$r"|"-↵")", R"(要添加的文本|"007"|"7")", R"(r||"-↵7")"}));
    m_bench->run.reset();
    settle();
    QCOMPARE(status(), "此步骤还没有运行");
}

void OperandsPanelTest::showsWarningsAndTheirFields()
{
    const int id = m_bench->addStep("text.append", {{"sourceText", "$gone"}, {"resultVar", "no"}});
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    settle();
    QCOMPARE(rows().value(0), R"(原文本|"$gone"|（没有值）)");
    QVERIFY(rows().last().contains("未声明为字符串"));
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    doubleClick(item("未声明为字符串"));
    QCOMPARE(wanted.count(), 1);
    QVERIFY(wanted.first().first().value<EditPlace>() == (EditPlace{id, "resultVar", 0}));
}

void OperandsPanelTest::showsWhatIsNoNumber()
{
    const int id = m_bench->addStep(
        "text.substring", {{"sourceText", "abc"}, {"startIndex", "$r"}, {"resultVar", "r"}});
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    settle();
    QVERIFY(rows().value(1).endsWith(R"(|"$r"|"-↵"（不是数值）)"));
}

void OperandsPanelTest::tellsThatAStepWasEdited()
{
    const int id = m_bench->addAppend("a");
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    m_bench->document.change("edit", m_bench->document.state().withProperty(id, "appendText", "b"),
                             {});
    settle();
    QVERIFY(status().contains("修改过"));
    QVERIFY(rows().value(1).endsWith(R"("a"|"a")"));
    m_bench->document.undo();
    settle();
    QVERIFY(!status().contains("修改过"));
}

void OperandsPanelTest::leadsToFieldsAndVariables()
{
    const int id = m_bench->addAppend("a");
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    settle();
    QSignalSpy wanted(&m_bench->bench.place, &CurrentPlace::wanted);
    doubleClick(item("要添加的文本"));
    m_view->setCurrentItem(m_view->findItems("r", Qt::MatchExactly | Qt::MatchRecursive).value(0));
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(wanted.count(), 2);
    const int variable = m_bench->document.state().variables.first().id;
    QVERIFY(wanted.at(0).first().value<EditPlace>() == (EditPlace{id, "appendText", 0}));
    QVERIFY(wanted.at(1).first().value<EditPlace>() == (EditPlace{0, {}, variable}));
}

void OperandsPanelTest::copiesAWholeValue()
{
    const QString large(16 * 1024 * 1024, QLatin1Char('x'));
    m_bench->addVariable("large", VarType::String, large);
    const int id = m_bench->addStep(
        "text.append", {{"sourceText", "$large"}, {"appendText", "y"}, {"resultVar", "r"}});
    m_bench->bench.place.setStep(id);
    QVERIFY(m_bench->runs());
    settle();
    QVERIFY(rows().first().contains("（16,777,216 个 UTF-16 单元）"));
    m_panel->setFocus();
    m_view->setCurrentItem(item("原文本"));
    QTest::keyClick(m_view, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text() == large);
}

void OperandsPanelTest::followsThePalette()
{
    m_bench->bench.place.setStep(
        m_bench->addStep("text.append", {{"sourceText", "b"}, {"resultVar", "gone"}}));
    QVERIFY(m_bench->runs());
    settle();
    const auto colour = [this] { return m_view->topLevelItem(1)->child(0)->foreground(0).color(); };
    const QPalette before = QGuiApplication::palette();
    QCOMPARE(colour(), Shades::of(before).warning);
    QPalette dark(Qt::darkGray, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    QVERIFY(Shades::of(dark).warning != Shades::of(before).warning);
    QApplication::setPalette(dark);
    QTRY_COMPARE(colour(), Shades::of(dark).warning);
    QApplication::setPalette(before);
}

QTEST_MAIN(OperandsPanelTest)
#include "OperandsPanelTest.moc"
