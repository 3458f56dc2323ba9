#include "refhost/workbench/editor/ExactTextEdit.h"
#include "tests/support/QuietTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

/// The field for texts keeps every unit, whatever is done around it, and shows what is invisible.
class EditorExactTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTexts_data();
    void keepsTexts();
    void editsAroundThem_data() { keepsTexts_data(); }
    void editsAroundThem();
    void copiesAndPastesThem_data() { keepsTexts_data(); }
    void copiesAndPastesThem();
    void followsWithoutLosingTheCursor_data();
    void followsWithoutLosingTheCursor();
    void pairsStayWhole();
    void enterMakesALineOnlyWithShift();
    void handsOutWhatIsTooMuch();
    void growsToFiveLines();
};

void EditorExactTextTest::keepsTexts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString("");
    QTest::newRow("plain") << QString("ab");
    QTest::newRow("line feed") << QString("a\nb");
    QTest::newRow("line feeds alone") << QString("\n\n");
    QTest::newRow("carriage return") << QString("a\rb");
    QTest::newRow("both") << QString("a\r\nb\r\n");
    QTest::newRow("tabulators") << QString("\ta\t\tb\t");
    QTest::newRow("NUL") << QString(QChar(0)) + "a" + QChar(0);
    QTest::newRow("other controls") << QString("\x01\x1b\x7f\u0085");
    QTest::newRow("no-break space") << QString("a\u00a0b \u00a0");
    QTest::newRow("soft hyphen") << QString("a\u00adb");
    QTest::newRow("zero width") << QString("\u200b\u200c\u200d\u2060\ufeff");
    QTest::newRow("directions") << QString("\u202eabc\u202c\u200f");
    QTest::newRow("separators of lines") << QString("a\u2028b\u2029c");
    QTest::newRow("other spaces") << QString("\u3000\u2003\u202f");
    QTest::newRow("object replacement") << QString("a\ufffcb\ufffc\ufffc");
    QTest::newRow("high surrogate") << QString("a") + QChar(0xd83d) + "b";
    QTest::newRow("low surrogate") << QString(QChar(0xde00)) + "b";
    QTest::newRow("surrogates in the wrong order") << QString(QChar(0xde00)) + QChar(0xd83d);
    QTest::newRow("three surrogates") << QString(QChar(0xd83d)) + QChar(0xd83d) + QChar(0xde00);
    QTest::newRow("pair") << QString("\U0001f600");
    QTest::newRow("pairs that are invisible") << QString("\U000e0041\U0001d173");
    QTest::newRow("frames of documents") << QString(QChar(0xfdd0)) + "a" + QChar(0xfdd1);
    QTest::newRow("no characters") << QString(QChar(0xffff)) + QChar(0xfffe);
    QTest::newRow("combining") << QString("e\u0301\u0301");
    QTest::newRow("markup") << QString("<b>&amp;</b>");
}

void EditorExactTextTest::keepsTexts()
{
    QFETCH(QString, text);
    ExactTextEdit edit;
    QSignalSpy edited(&edit, &ExactTextEdit::textEdited);
    edit.setText(text);
    QTEST(edit.text(), "text");
    edit.setText("other");
    edit.setText(text + "x" + text);
    QCOMPARE(edit.text(), text + "x" + text);
    edit.setText(text);
    QTEST(edit.text(), "text");
    QCOMPARE(edited.count(), 0);
}

void EditorExactTextTest::editsAroundThem()
{
    QFETCH(QString, text);
    ExactTextEdit edit;
    edit.setText(text);
    edit.moveCursor(QTextCursor::Start);
    QTest::keyClicks(&edit, "yx");
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), "x" + text);
    edit.moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit, "zz");
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.text(), "x" + text + "z");
}

void EditorExactTextTest::copiesAndPastesThem()
{
    QFETCH(QString, text);
    ExactTextEdit edit;
    edit.setText(text);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Bar);
    if (!text.isEmpty()) {
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(edit.text(), text + "|" + text);
    }
    edit.selectAll();
    const QString whole = edit.text();
    QTest::keyClick(&edit, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(edit.text(), QString());
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit.text(), whole);
    auto *const plain = new QMimeData;
    plain->setText(text);
    QGuiApplication::clipboard()->setMimeData(plain);
    edit.selectAll();
    edit.paste();
    QCOMPARE(edit.text(), text.isEmpty() ? QString() : text);
}

void EditorExactTextTest::followsWithoutLosingTheCursor_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("moved");

    QTest::newRow("change behind") << "abc" << 1 << "abcd" << 1;
    QTest::newRow("change in front") << "abc" << 2 << "xabc" << 3;
    QTest::newRow("change within") << "a\tbc" << 3 << "a\t\tbc" << 4;
    QTest::newRow("same") << "a\tb" << 2 << "a\tb" << 2;
    QTest::newRow("cut") << "abc" << 3 << "a" << 1;
    QTest::newRow("other half of a pair") << "\U0001f600x" << 3 << "\U0001f601x" << 3;
    QTest::newRow("pair of halves") << QString(QChar(0xd83d)) + "x" + QChar(0xde00) << 3
                                    << QString(QChar(0xd83d)) + QChar(0xde00) << 2;
}

void EditorExactTextTest::followsWithoutLosingTheCursor()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, after);
    ExactTextEdit edit;
    edit.show();
    QApplication::setActiveWindow(&edit);
    edit.setFocus();
    edit.setText(before);
    QTextCursor place = edit.textCursor();
    place.setPosition(cursor);
    edit.setTextCursor(place);
    edit.setText(after);
    QTEST(edit.text(), "after");
    QTEST(edit.textCursor().position(), "moved");
}

/// Two characters that share half of their surrogates: neither half becomes a mark.
void EditorExactTextTest::pairsStayWhole()
{
    ExactTextEdit edit;
    for (const char *const text : {"a\U0001f600b", "a\U0001f601b", "a\U0001f201b"}) {
        edit.setText(text);
        QCOMPARE(edit.toPlainText(), QString(text));
    }
    edit.insertText("\U0001f600");
    QCOMPARE(edit.toPlainText(), QString("\U0001f600a\U0001f201b"));
}

void EditorExactTextTest::enterMakesALineOnlyWithShift()
{
    ExactTextEdit edit;
    QSignalSpy entered(&edit, &ExactTextEdit::entered);
    edit.setText("a");
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(edit.text(), QString("a"));
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(edit.text(), QString("a\n"));
    edit.setLineFeedsAllowed(false);
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::ShiftModifier);
    QCOMPARE(edit.text(), QString("a\n"));
}

void EditorExactTextTest::handsOutWhatIsTooMuch()
{
    ExactTextEdit edit;
    edit.setMostUnits(10);
    QSignalSpy oversized(&edit, &ExactTextEdit::oversized);
    edit.setText("abc");
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(1);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
    edit.insertText(QString(10, 'x'));
    QCOMPARE(oversized.count(), 1);
    QCOMPARE(oversized.first().first().toString(), "a" + QString(10, 'x') + "c");
    QCOMPARE(edit.text(), QString("abc"));
}

void EditorExactTextTest::growsToFiveLines()
{
    ExactTextEdit edit;
    edit.resize(400, 10);
    edit.show();
    edit.setText("a");
    const int one = edit.height();
    edit.setText("a\nb\nc");
    const int three = edit.height();
    QVERIFY(three > one);
    edit.setText("a\nb\nc\nd\ne");
    const int five = edit.height();
    QVERIFY(five > three);
    edit.setText(QString("a\n").repeated(50));
    QCOMPARE(edit.height(), five);
    edit.setText("a");
    QCOMPARE(edit.height(), one);
}

QTEST_MAIN(EditorExactTextTest)
#include "EditorExactTextTest.moc"
