#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/EditorBench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

/// The panel edits the current step through the document and follows whatever happens to it.
class EditorPanelTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void saysWhatToDoWithoutAStep();
    void tellsWhatTheStepIs();
    void showsAllProperties_data();
    void showsAllProperties();
    void typingIsOneStepOfUndo();
    void undoBringsBackWhatWasRemoved();
    void leavingEndsTyping();
    void undoFromWithinAField();
    void undoFromTheMenuOfAField();
    void followsOthersWithoutLosingTheCursor();
    void conditionsFollowTheMode();
    void keepsValuesOfHiddenProperties();
    void keepsAnUnknownChoice();
    void wheelLeavesChoicesAlone();
    void switchesStepsOfOneClassInPlace();
    void goesToAField();
    void goesToWhatHidesAField();
    void showsFindings();
    void showsFindingsOnce();
    void limitsHugeTexts();
    void plainNumbers_data();
    void plainNumbers();
    void oddProperties();
    void tabGoesThroughTheFields();

private:
    std::unique_ptr<EditorBench> m_bench;
};

void EditorPanelTest::init()
{
    QuietTest::init();
    m_bench = std::make_unique<EditorBench>();
}

void EditorPanelTest::cleanup()
{
    m_bench.reset();
    QuietTest::cleanup();
}

void EditorPanelTest::saysWhatToDoWithoutAStep()
{
    QVERIFY(m_bench->part<QWidget>("empty")->isVisible());
    m_bench->open("text.trim");
    QVERIFY(!m_bench->part<QWidget>("empty")->isVisible());
    m_bench->bench.document.replace({});
    QVERIFY(m_bench->part<QWidget>("empty")->isVisible());
    QVERIFY(!m_bench->part<QWidget>("scroll")->isVisible());
}

void EditorPanelTest::tellsWhatTheStepIs()
{
    m_bench->open("text.append");
    QCOMPARE(m_bench->part<QLabel>("header.name")->text(), QString("添加文本"));
    QCOMPARE(m_bench->part<QLabel>("header.type")->text(), QString("text.append"));
    QTest::keyClicks(m_bench->text("sourceText"), "abc");
    QTRY_VERIFY(m_bench->text("header.summary")->text().contains("abc"));
    QTRY_VERIFY(m_bench->text("header.description")->text().contains("abc"));
    m_bench->open("editors.names");
    QTRY_VERIFY(!m_bench->text("header.summary")->isVisible());
    QVERIFY(!m_bench->text("header.description")->isVisible());
}

void EditorPanelTest::showsAllProperties_data()
{
    QTest::addColumn<QString>("typeId");
    const OperationCatalog catalog(
        {QStringLiteral(PLUGIN_FILE), QStringLiteral(EDITORS_PLUGIN), QStringLiteral(ODD_PLUGIN)});
    for (const QString &typeId : catalog.typeIds())
        QTest::newRow(qPrintable(typeId)) << typeId;
}

void EditorPanelTest::showsAllProperties()
{
    QFETCH(QString, typeId);
    m_bench->open(typeId);
    const OperationSchema schema(*m_bench->bench.library.catalog().find(typeId)->prototype);
    const Operation &step = *m_bench->bench.document.state().steps.first().operation;
    int last = -1;
    for (const PropertySchema &property : schema.properties()) {
        QVERIFY(m_bench->row(property.name));
        QCOMPARE(m_bench->isShown(property.name), isShown(property, step));
        QVERIFY(m_bench->part<QWidget>(property.name));
        if (!m_bench->isShown(property.name))
            continue;
        QTRY_VERIFY(m_bench->row(property.name)->y() > last);
        last = m_bench->row(property.name)->y();
    }
    QVERIFY(!m_bench->bench.document.undoStack().canUndo());
}

void EditorPanelTest::typingIsOneStepOfUndo()
{
    m_bench->open("text.append");
    QTest::keyClicks(m_bench->text("sourceText"), "abc");
    QCOMPARE(m_bench->get("sourceText").toString(), QString("abc"));
    QCOMPARE(m_bench->bench.document.undoStack().count(), 1);
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->text("sourceText")->text(), QString());
    m_bench->bench.document.redo();
    QCOMPARE(m_bench->text("sourceText")->text(), QString("abc"));
    QCOMPARE(m_bench->bench.document.undoStack().count(), 1);
}

void EditorPanelTest::undoBringsBackWhatWasRemoved()
{
    m_bench->open("text.append");
    ExactTextEdit *const field = m_bench->text("sourceText");
    const auto undone = [this] {
        m_bench->bench.document.undo();
        return m_bench->get("sourceText").toString();
    };
    QTest::keyClicks(field, "a long text");
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QCOMPARE(undone(), QString("a long text"));
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, "another");
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(undone(), QString("another"));
    // What takes the place of another text is one change with it.
    QCOMPARE(undone(), QString("a long text"));
    QCOMPARE(undone(), QString());
}

void EditorPanelTest::leavingEndsTyping()
{
    m_bench->open("text.append");
    m_bench->text("sourceText")->setFocus();
    QTest::keyClicks(m_bench->text("sourceText"), "a");
    m_bench->text("appendText")->setFocus();
    m_bench->text("sourceText")->setFocus();
    QTest::keyClicks(m_bench->text("sourceText"), "b");
    QCOMPARE(m_bench->bench.document.undoStack().count(), 2);
}

void EditorPanelTest::undoFromWithinAField()
{
    m_bench->open("text.append");
    QTest::keyClicks(m_bench->text("sourceText"), "a");
    auto *const name = m_bench->part<QComboBox>("resultVar");
    QTest::keyClicks(name->lineEdit(), "xy");
    QCOMPARE(m_bench->get("resultVar").toString(), QString("xy"));
    QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_bench->get("resultVar").toString(), QString());
    QCOMPARE(name->lineEdit()->text(), QString());
    QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_bench->text("sourceText")->text(), QString());
    QVERIFY(m_bench->text("sourceText")->hasFocus());
    QTest::keySequence(m_bench->text("sourceText"), QKeySequence::Redo);
    QCOMPARE(m_bench->get("sourceText").toString(), QString("a"));
    QTest::keyClick(m_bench->text("sourceText"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_bench->get("sourceText").toString(), QString());
}

void EditorPanelTest::undoFromTheMenuOfAField()
{
    m_bench->open("text.append");
    ExactTextEdit *const field = m_bench->text("sourceText");
    QTest::keyClicks(field, "a");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), field->mapToGlobal({3, 3}));
    QApplication::sendEvent(field->viewport(), &event);
    QTRY_VERIFY(QApplication::activePopupWidget());
    auto *const undo = QApplication::activePopupWidget()->findChild<QAction *>("edit-undo");
    QVERIFY(undo->isEnabled());
    undo->trigger();
    QApplication::activePopupWidget()->close();
    QCOMPARE(m_bench->get("sourceText").toString(), QString());
}

void EditorPanelTest::followsOthersWithoutLosingTheCursor()
{
    m_bench->open("text.append");
    ExactTextEdit *const field = m_bench->text("sourceText");
    field->setFocus();
    QTest::keyClicks(field, "abcd");
    QTest::keyClick(field, Qt::Key_Left);
    m_bench->set("sourceText", "xabcd");
    QCOMPARE(field->text(), QString("xabcd"));
    QCOMPARE(field->textCursor().position(), 4);
    QVERIFY(field->hasFocus());
    m_bench->set("appendText", "z");
    QCOMPARE(field->textCursor().position(), 4);
    QCOMPARE(m_bench->bench.document.undoStack().count(), 3);

    auto *const name = m_bench->part<QComboBox>("resultVar")->lineEdit();
    QTest::keyClicks(name, "abc");
    QTest::keyClick(name, Qt::Key_Left);
    QTest::keyClicks(name, "x");
    QCOMPARE(name->text(), QString("abxc"));
    QCOMPARE(name->cursorPosition(), 3);
}

void EditorPanelTest::conditionsFollowTheMode()
{
    m_bench->open("editors.operands");
    auto *const mode = m_bench->part<QComboBox>("mode");
    QVERIFY(!m_bench->isShown("extra") && !m_bench->isShown("flag"));
    QTest::keyClick(mode, Qt::Key_Down);
    QCOMPARE(m_bench->get("mode").toInt(), 1);
    QVERIFY(m_bench->isShown("extra") && !m_bench->isShown("flag"));
    QTest::keyClick(mode, Qt::Key_Down);
    QVERIFY(m_bench->isShown("extra") && m_bench->isShown("flag"));
    QVERIFY(m_bench->isShown("lost"));
    m_bench->bench.document.undo();
    QVERIFY(!m_bench->isShown("flag"));
    QCOMPARE(mode->currentIndex(), 1);
}

void EditorPanelTest::keepsValuesOfHiddenProperties()
{
    m_bench->open("editors.operands");
    m_bench->set("mode", 2);
    QTest::mouseClick(m_bench->part<QCheckBox>("flag"), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(m_bench->get("flag").toBool(), true);
    m_bench->set("extra", "kept");
    m_bench->set("mode", 0);
    QCOMPARE(m_bench->get("extra").toString(), QString("kept"));
    QCOMPARE(m_bench->get("flag").toBool(), true);
    m_bench->set("mode", 2);
    QCOMPARE(m_bench->text("extra")->text(), QString("kept"));
    QVERIFY(m_bench->part<QCheckBox>("flag")->isChecked());
}

void EditorPanelTest::keepsAnUnknownChoice()
{
    m_bench->open("editors.operands");
    m_bench->set("mode", 7);
    auto *const mode = m_bench->part<QComboBox>("mode");
    QCOMPARE(mode->currentText(), QString("7（不在列表中）"));
    QCOMPARE(m_bench->remarkKind("mode"), Remark::Kind::Warning);
    QTest::keyClicks(m_bench->text("text"), "a");
    QCOMPARE(m_bench->get("mode").toInt(), 7);
    QTest::keyClick(mode, Qt::Key_Up);
    QCOMPARE(m_bench->get("mode").toInt(), 2);
    QCOMPARE(mode->count(), 3);
    QCOMPARE(m_bench->remark("mode"), QString());
    m_bench->bench.document.undo();
    QCOMPARE(mode->currentText(), QString("7（不在列表中）"));
    m_bench->set("mode", -1);
    QCOMPARE(mode->currentText(), QString("-1（不在列表中）"));
}

void EditorPanelTest::wheelLeavesChoicesAlone()
{
    m_bench->open("editors.operands");
    auto *const mode = m_bench->part<QComboBox>("mode");
    QWheelEvent event({3, 3}, mode->mapToGlobal({3, 3}), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(mode, &event);
    QCOMPARE(m_bench->get("mode").toInt(), 0);
}

void EditorPanelTest::switchesStepsOfOneClassInPlace()
{
    m_bench->open("text.append");
    const TaskState one = m_bench->bench.document.state();
    const StepState second = m_bench->newStep("text.append");
    const StepState other = m_bench->newStep("text.trim");
    m_bench->bench.document.change("add", one.withSteps(1, {second, other}), {});
    ExactTextEdit *const field = m_bench->text("sourceText");
    QTest::keyClicks(field, "first");
    m_bench->bench.place.setStep(second.id);
    QCOMPARE(m_bench->text("sourceText"), field);
    QCOMPARE(field->text(), QString());
    QTest::keyClicks(field, "second");
    QCOMPARE(m_bench->get("sourceText").toString(), QString("second"));
    m_bench->bench.place.setStep(one.steps.first().id);
    QCOMPARE(field->text(), QString("first"));
    m_bench->bench.place.setStep(other.id);
    QTRY_VERIFY(!m_bench->part<QWidget>("appendText"));
    QVERIFY(m_bench->part<QComboBox>("mode"));
    QTest::keyClick(m_bench->text("sourceText"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_bench->bench.place.step(), second.id);
    QTRY_COMPARE(m_bench->text("sourceText")->text(), QString());
}

void EditorPanelTest::goesToAField()
{
    m_bench->open("text.append");
    const int step = m_bench->bench.place.step();
    m_bench->bench.place.goTo({step, "appendText", 0});
    QVERIFY(m_bench->text("appendText")->hasFocus());
    m_bench->bench.place.goTo({step, "resultVar", 0});
    QVERIFY(m_bench->part<QComboBox>("resultVar")->hasFocus());
    m_bench->bench.place.goTo({step, QString(), 0});
    m_bench->bench.place.goTo({step, "nothing", 0});
    QVERIFY(m_bench->part<QComboBox>("resultVar")->hasFocus());
}

void EditorPanelTest::goesToWhatHidesAField()
{
    m_bench->open("editors.operands");
    m_bench->bench.place.goTo({m_bench->bench.place.step(), "flag", 0});
    QVERIFY(!m_bench->isShown("flag"));
    QVERIFY(m_bench->part<QComboBox>("mode")->hasFocus());
    auto *const hint = m_bench->part<RemarkLine>("mode.hint");
    QVERIFY(hint->isVisible() && hint->text().contains("flag"));
    m_bench->set("mode", 2);
    QVERIFY(!hint->isVisible());
}

void EditorPanelTest::showsFindings()
{
    m_bench->open("text.append");
    m_bench->set("sourceText", "a\\nb");
    m_bench->bench.check.update();
    QCOMPARE(m_bench->findings("sourceText"), QStringList{"\\n is typed into the text"});
    const auto *const line = m_bench->part<RemarkLine>("sourceText.finding");
    QVERIFY(line->isVisible() && line->toolTip().contains("backslash"));
    m_bench->set("sourceText", "ab");
    QTRY_COMPARE(m_bench->findings("sourceText"), QStringList());
}

void EditorPanelTest::showsFindingsOnce()
{
    m_bench->open("text.substring", {{"items", VarType::List, {}}});
    m_bench->set("sourceText", "$lost");
    m_bench->set("startIndex", "many");
    m_bench->set("resultVar", "items");
    m_bench->bench.check.update();
    QVERIFY(m_bench->bench.check.findings().size() >= 3);
    for (const char *const name : {"sourceText", "startIndex", "resultVar"}) {
        QCOMPARE(m_bench->findings(name), QStringList());
        QVERIFY(!m_bench->remark(name).isEmpty());
        QVERIFY(!m_bench->part<RemarkLine>(QString(name) + ".remark")->toolTip().isEmpty());
    }
}

void EditorPanelTest::limitsHugeTexts()
{
    m_bench->open("text.append");
    const QString huge = QString("x\n").repeated(1000000);
    m_bench->set("sourceText", huge);
    QVERIFY(m_bench->text("header.summary")->text().size() < 1000);
    QVERIFY(m_bench->text("header.description")->text().size() < 1000);
    ExactTextEdit *const field = m_bench->text("sourceText");
    QVERIFY(field->isReadOnly());
    QVERIFY(field->text().size() < 10000);
    QVERIFY(m_bench->remark("sourceText").contains(QLocale().toString(huge.size())));
    QTest::keyClicks(field, "abc");
    QTest::keyClicks(m_bench->text("appendText"), "abc");
    QCOMPARE(m_bench->get("sourceText").toString(), huge);
    m_bench->fix("sourceText");
    QCOMPARE(m_bench->get("sourceText").toString(), QString());
    QVERIFY(!field->isReadOnly());
    m_bench->bench.document.undo();
    QCOMPARE(m_bench->get("sourceText").toString(), huge);
    m_bench->bench.document.redo();
    field->insertText(huge);
    QCOMPARE(m_bench->get("sourceText").toString(), huge);
    QVERIFY(field->isReadOnly());
    m_bench->open("text.append");
    m_bench->set("resultVar", huge);
    QTest::keyClicks(m_bench->part<QComboBox>("resultVar")->lineEdit(), "abc");
    QCOMPARE(m_bench->get("resultVar").toString(), huge);
}

void EditorPanelTest::plainNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isFit");
    QTest::addColumn<QString>("left");

    QTest::newRow("decimals") << "1.5" << 1.5 << true << "1.5";
    QTest::newRow("zeros behind") << "1.0" << 1.0 << true << "1";
    QTest::newRow("exponent") << "1e300" << 1e300 << true << "1e+300";
    QTest::newRow("exact") << "0.1" << 0.1 << true << "0.1";
    QTest::newRow("no number") << "x" << 0.5 << false << "0.5";
    QTest::newRow("half a number") << "1e" << 1.0 << false << "1";
}

void EditorPanelTest::plainNumbers()
{
    QFETCH(QString, typed);
    m_bench->open("editors.operands");
    ExactTextEdit *const field = m_bench->text("ratio");
    QCOMPARE(field->text(), QString("0.5"));
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, typed);
    QCOMPARE(field->text(), typed);
    QTEST(m_bench->get("ratio").toDouble(), "value");
    QFETCH(bool, isFit);
    QCOMPARE(m_bench->remark("ratio").isEmpty(), isFit);
    m_bench->text("text")->setFocus();
    QTEST(field->text(), "left");
    QCOMPARE(m_bench->remark("ratio"), QString());
}

void EditorPanelTest::oddProperties()
{
    m_bench->open("odd.plain");
    m_bench->set("tags", QStringList{"a", "b"});
    QCOMPARE(m_bench->text("tags")->text(), QString("a, b"));
    QVERIFY(m_bench->text("tags")->isReadOnly());
    QTest::keyClicks(m_bench->text("tags"), "c");
    QCOMPARE(m_bench->get("tags").toStringList(), (QStringList{"a", "b"}));
    QVERIFY(m_bench->remark("tags").contains("QStringList"));
    QTest::keyClicks(m_bench->text("text"), "$");
    QCOMPARE(m_bench->get("text").toString(), QString("$x"));
    QCOMPARE(m_bench->remark("text"), QString());
}

void EditorPanelTest::tabGoesThroughTheFields()
{
    m_bench->open("text.append");
    m_bench->text("sourceText")->setFocus();
    QTest::keyClick(m_bench->text("sourceText"), Qt::Key_Tab);
    QVERIFY(m_bench->text("appendText")->hasFocus());
    QTest::keyClick(m_bench->text("appendText"), Qt::Key_Return);
    QVERIFY(m_bench->part<QComboBox>("resultVar")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QVERIFY(m_bench->text("appendText")->hasFocus());
    QCOMPARE(m_bench->get("appendText").toString(), QString());
}

QTEST_MAIN(EditorPanelTest)
#include "EditorPanelTest.moc"
