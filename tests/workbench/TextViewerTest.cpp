#include "refhost/workbench/variables/TextViewer.h"
#include "refhost/workbench/variables/SlicedSearch.h"
#include "refhost/workbench/variables/TextFile.h"
#include "refhost/workbench/variables/TextRows.h"
#include "refhost/workbench/variables/WholeTextEdit.h"

#include "tests/support/QuietTest.h"

#include <QAction>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int hugeSize = 16000000;
constexpr int patience = 3000; ///< milliseconds, on a machine that has other things to do

/// Every kind of character that editors like to change.
QString oddText()
{
    return QString("a\r\nb\rc\n\td ") + QChar(0) + QChar(0xa0) + QChar(0x2028) + QChar(0x2029) +
           QChar(0xd800) + "😀" + QChar(0xdc00) + QChar(0xfffc) + QChar(0xfeff) + QChar(0xfdd0) +
           QChar(0x1b) + "\r\n\n";
}

QString randomText(QRandomGenerator &random, int size)
{
    static const QString units = QString("ab\n\n中é\r") + QChar(0xd83d) + QChar(0xde00);
    QString text;
    while (text.size() < size)
        text += units.at(random.bounded(units.size()));
    return text;
}

} // namespace

/// A text of any size is shown, searched and edited exactly.
class TextViewerTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dividesTexts_data();
    void dividesTexts();
    void dividesTheRestAlike();
    void findsRowsAndLines();
    void searches_data();
    void searches();
    void searchesRepetitiveTexts();
    void opensHugeTexts_data();
    void opensHugeTexts();
    void keepsEveryCharacter();
    void typesAndUndoes();
    void takesInputMethods();
    void movesByWholeCharacters();
    void selectsAndReplaces();
    void showsWhereTheCursorIs();
    void findsForwardsAndBackwards();
    void findsInHugeTexts();
    void goesToAPosition();
    void handsTheTextOver();
    void staysOpenWhenRefused();
    void cancelChangesNothing();
    void escapeAsksOnce();
    void isReadOnlyWithoutASetter();
    void loadsAndSavesFiles();
    void refusesOtherEncodings();

private:
    void open(const QString &text, bool readOnly = false);
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_viewer->findChild<Widget *>(QString::fromLatin1(name));
    }
    WholeTextEdit *edit() const { return child<WholeTextEdit>("viewer.text"); }

    QPointer<TextViewer> m_viewer;
    QVariant m_taken;
    QString m_refusal;
};

void TextViewerTest::init()
{
    QuietTest::init();
    m_taken = {};
    m_refusal.clear();
}

void TextViewerTest::cleanup()
{
    delete m_viewer;
    QuietTest::cleanup();
}

void TextViewerTest::open(const QString &text, bool readOnly)
{
    ValueSetter setter;
    if (!readOnly) {
        setter = [this](const QVariant &value) {
            m_taken = value;
            return m_refusal;
        };
    }
    m_viewer = new TextViewer("a", text, setter, nullptr);
    m_viewer->open();
    m_viewer->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_viewer));
    edit()->setFocus();
}

void TextViewerTest::dividesTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("nothing") << "" << QStringList{""};
    QTest::newRow("one row") << "abc" << QStringList{"abc"};
    QTest::newRow("full row") << "abcd" << QStringList{"abcd"};
    QTest::newRow("too long") << "abcdef" << QStringList{"abcd", "ef"};
    QTest::newRow("line feed") << "ab\ncd" << QStringList{"ab\n", "cd"};
    QTest::newRow("last line feed") << "ab\n" << QStringList{"ab\n", ""};
    QTest::newRow("line feeds") << "\n\n" << QStringList{"\n", "\n", ""};
    QTest::newRow("line feed behind a full row") << "abcd\ne" << QStringList{"abcd\n", "e"};
    QTest::newRow("wide") << "一二三" << QStringList{"一二", "三"};
    QTest::newRow("wide with no room") << "abc一" << QStringList{"abc", "一"};
    QTest::newRow("pairs") << "😀😀😀" << QStringList{"😀😀", "😀"};
    QTest::newRow("pair with no room") << "abc😀" << QStringList{"abc", "😀"};
}

void TextViewerTest::dividesTexts()
{
    QFETCH(QString, text);
    TextRows rows;
    rows.divide(text, {4, 1, 2});
    QStringList divided;
    for (int row = 0; row < rows.count(); ++row) {
        const int start = rows.start(text, row);
        divided.append(text.mid(start, rows.end(text, start) - start));
    }
    QTEST(divided, "rows");
}

void TextViewerTest::dividesTheRestAlike()
{
    QRandomGenerator random(1);
    for (int round = 0; round < 300; ++round) {
        const TextRows::Widths widths{random.bounded(1, 12), 1, 2};
        QString text = randomText(random, random.bounded(3000));
        TextRows edited;
        edited.divide(text, widths);
        const int position = random.bounded(text.size() + 1);
        text.replace(position, random.bounded(20), randomText(random, random.bounded(20)));
        edited.divide(text, widths, qMax(0, position - widths.mostUnits()));
        TextRows fresh;
        fresh.divide(text, widths);
        QCOMPARE(edited.count(), fresh.count());
        QCOMPARE(edited.characters(), fresh.characters());
        for (int row = 0; row < fresh.count(); row += 17)
            QCOMPARE(edited.start(text, row), fresh.start(text, row));
        QCOMPARE(edited.lineAt(text, text.size()), text.count('\n'));
    }
}

void TextViewerTest::findsRowsAndLines()
{
    QRandomGenerator random(2);
    for (int round = 0; round < 20; ++round) {
        const QString text = randomText(random, random.bounded(2000));
        TextRows rows;
        rows.divide(text, {7, 1, 2});
        QCOMPARE(rows.characters(), text.toUcs4().size());
        int row = 0;
        for (int position = 0; position <= text.size(); ++position) {
            while (row + 1 < rows.count() && rows.start(text, row + 1) <= position)
                ++row;
            QCOMPARE(rows.rowAt(text, position), row);
            QCOMPARE(rows.lineAt(text, position), text.left(position).count('\n'));
        }
    }
}

void TextViewerTest::searches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sought");
    QTest::newRow("plain") << "one two one two"
                           << "two";
    QTest::newRow("overlapping") << "aaaaaa"
                                 << "aa";
    QTest::newRow("period") << "abababab"
                            << "abab";
    QTest::newRow("over the end") << "bxxa"
                                  << "ab";
    QTest::newRow("whole") << "abc"
                           << "abc";
    QTest::newRow("longer") << "ab"
                            << "abc";
    QTest::newRow("nothing") << ""
                             << "a";
    QTest::newRow("missing") << "abcabd"
                             << "abe";
    QTest::newRow("line feeds") << "a\n\nb\n"
                                << "\n";
}

void TextViewerTest::searches()
{
    QFETCH(QString, text);
    QFETCH(QString, sought);
    for (int from = 0; from <= text.size(); ++from) {
        SlicedSearch forward(text, sought, from, SlicedSearch::Direction::Forward);
        while (forward.advance(1) == SlicedSearch::State::Searching) {
        }
        const int next = text.indexOf(sought, from);
        QCOMPARE(forward.position(), next < 0 ? text.indexOf(sought) : next);

        SlicedSearch backward(text, sought, from, SlicedSearch::Direction::Backward);
        while (backward.advance(1) == SlicedSearch::State::Searching) {
        }
        int previous = -1;
        for (int at = 0; at + sought.size() <= from; ++at)
            previous = text.midRef(at).startsWith(sought) ? at : previous;
        QCOMPARE(backward.position(), previous < 0 ? text.lastIndexOf(sought) : previous);
    }
}

void TextViewerTest::searchesRepetitiveTexts()
{
    const QString text(2000000, 'a');
    QElapsedTimer clock;
    clock.start();
    SlicedSearch search(text, QString(20000, 'a') + "b", 5, SlicedSearch::Direction::Forward);
    while (search.advance(1 << 20) == SlicedSearch::State::Searching) {
    }
    QCOMPARE(search.position(), -1);
    // Comparing at every place would take hours.
    QVERIFY2(clock.elapsed() < patience, qPrintable(QString::number(clock.elapsed())));
}

void TextViewerTest::opensHugeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("without a line break") << QString(hugeSize, 'a');
    QTest::newRow("line breaks alone") << QString(hugeSize, '\n');
    QTest::newRow("surrogate pairs") << QString("😀").repeated(hugeSize / 2);
    QTest::newRow("lines") << QString("some line of text\r\n").repeated(hugeSize / 19);
}

void TextViewerTest::opensHugeTexts()
{
    QFETCH(QString, text);
    QElapsedTimer clock;
    clock.start();
    open(text);
    m_viewer->grab();
    QVERIFY2(clock.elapsed() < patience, qPrintable(QString::number(clock.elapsed())));

    clock.restart();
    QScrollBar *const bar = edit()->verticalScrollBar();
    for (int i = 0; i <= 20; ++i) {
        bar->setValue(static_cast<int>(qint64(bar->maximum()) * i / 20));
        edit()->grab();
    }
    QTest::keyClick(edit(), Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(edit()->cursor(), text.size());
    QTest::keyClick(edit(), Qt::Key_PageUp);
    QTest::keyClick(edit(), 'x');
    QCOMPARE(edit()->text().size(), text.size() + 1);
    edit()->undo();
    QVERIFY(edit()->text() == text);
    QVERIFY2(clock.elapsed() < 2 * patience, qPrintable(QString::number(clock.elapsed())));
}

void TextViewerTest::keepsEveryCharacter()
{
    open(oddText());
    QCOMPARE(m_viewer->value().toString(), oddText());
    m_viewer->grab();
    QTest::keyClick(edit(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(edit(), "x");
    QCOMPARE(m_viewer->value().toString(), oddText() + "x");
    edit()->selectAll();
    QTest::keyClick(edit(), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_viewer->value().toString(), "");
    QTest::keyClick(edit(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_viewer->value().toString(), oddText() + "x");
    m_viewer->accept();
    QCOMPARE(m_taken.toString(), oddText() + "x");
}

void TextViewerTest::typesAndUndoes()
{
    open("ab");
    QTest::keyClick(edit(), Qt::Key_End);
    QTest::keyClicks(edit(), "cd");
    QTest::keyClick(edit(), Qt::Key_Return);
    QTest::keyClick(edit(), Qt::Key_Tab);
    QTest::keyClicks(edit(), "e");
    QCOMPARE(edit()->text(), "abcd\n\te");
    QTest::keyClick(edit(), Qt::Key_Backspace);
    QCOMPARE(edit()->text(), "abcd\n\t");
    QTest::keyClick(edit(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(edit(), Qt::Key_Delete);
    QCOMPARE(edit()->text(), "bcd\n\t");
    QStringList states;
    while (edit()->isModified()) {
        QTest::keyClick(edit(), Qt::Key_Z, Qt::ControlModifier);
        states.append(edit()->text());
    }
    QCOMPARE(states, (QStringList{"abcd\n\t", "abcd\n\te", "abcd\n", "ab"}));
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(edit(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit()->text(), "bcd\n\t");
}

void TextViewerTest::takesInputMethods()
{
    open("ab");
    edit()->setCursor(1);
    QInputMethodEvent composing("zhong", {});
    QCoreApplication::sendEvent(edit(), &composing);
    m_viewer->grab();
    QCOMPARE(edit()->text(), "ab");
    QInputMethodEvent done;
    done.setCommitString("中");
    QCoreApplication::sendEvent(edit(), &done);
    QCOMPARE(edit()->text(), "a中b");
    QVERIFY(edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect().isValid());
}

void TextViewerTest::movesByWholeCharacters()
{
    open("a😀b");
    QVector<int> positions{edit()->cursor()};
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(edit(), Qt::Key_Right);
        positions.append(edit()->cursor());
    }
    QCOMPARE(positions, (QVector<int>{0, 1, 3, 4, 4}));
    edit()->setCursor(2);
    QCOMPARE(edit()->cursor(), 1);
    edit()->setCursor(3);
    QTest::keyClick(edit(), Qt::Key_Backspace);
    QCOMPARE(edit()->text(), "ab");
}

void TextViewerTest::selectsAndReplaces()
{
    open("one two\nthree");
    QTest::keyClick(edit(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit()->selectedText(), "one ");
    QTest::keyClicks(edit(), "1");
    QCOMPARE(edit()->text(), "1two\nthree");
    QTest::keyClick(edit(), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(edit()->selectedText(), "two\nt");
    QTest::keyClick(edit(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "two\nt");
    QTest::mouseDClick(
        edit()->viewport(), Qt::LeftButton, {},
        {edit()->fontMetrics().averageCharWidth() * 3, edit()->fontMetrics().height() / 2});
    QCOMPARE(edit()->selectedText(), "1two");
}

void TextViewerTest::showsWhereTheCursorIs()
{
    open("ab\n😀c");
    QCOMPARE(child<QLabel>("viewer.size")->text(), "6 个 UTF-16 单元，5 个字符");
    QTest::keyClick(edit(), Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(child<QLabel>("viewer.where")->text(), "第 2 行，第 4 个单元");
    QCOMPARE(child<QSpinBox>("viewer.position")->value(), 6);
}

void TextViewerTest::findsForwardsAndBackwards()
{
    open("one two one two");
    QTest::keyClick(m_viewer, Qt::Key_F, Qt::ControlModifier);
    auto *const search = child<QLineEdit>("viewer.search");
    QTRY_VERIFY(search->hasFocus());
    QTest::keyClicks(search, "two");
    const auto press = [&](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(m_viewer, Qt::Key_F3, modifiers);
        return edit()->cursor() - edit()->selectedText().size();
    };
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(m_viewer->isVisible());
    QCOMPARE(edit()->selectedText(), "two");
    QCOMPARE(edit()->cursor(), 7);
    QCOMPARE(press({}), 12);
    QCOMPARE(press({}), 4);
    QVERIFY(!child<QLabel>("viewer.searchMessage")->text().isEmpty());
    QCOMPARE(press(Qt::ShiftModifier), 12);
    QCOMPARE(press(Qt::ShiftModifier), 4);
    search->setText("three");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(child<QLabel>("viewer.searchMessage")->text(), "没有找到");
}

void TextViewerTest::findsInHugeTexts()
{
    open(QString(hugeSize, 'a') + "b");
    auto *const search = child<QLineEdit>("viewer.search");
    search->setText("ab");
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY2(clock.elapsed() < patience / 3, qPrintable(QString::number(clock.elapsed())));
    QTRY_COMPARE(edit()->cursor(), hugeSize + 1);
}

void TextViewerTest::goesToAPosition()
{
    open(QString("line\n").repeated(1000));
    auto *const position = child<QSpinBox>("viewer.position");
    position->setValue(4000);
    QCOMPARE(edit()->cursor(), 4000);
    QCOMPARE(child<QLabel>("viewer.where")->text(), "第 801 行，第 1 个单元");
    QVERIFY(edit()->verticalScrollBar()->value() > 700);
}

void TextViewerTest::handsTheTextOver()
{
    open("a");
    QTest::keyClicks(edit(), "b");
    QTest::keyClick(m_viewer, Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!m_viewer);
    QCOMPARE(m_taken.toString(), "ba");
}

void TextViewerTest::staysOpenWhenRefused()
{
    open("a");
    m_refusal = "no";
    QTest::keyClicks(edit(), "b");
    m_viewer->accept();
    QVERIFY(m_viewer->isVisible());
    QCOMPARE(child<QLabel>("value.message")->text(), "no");
    QCOMPARE(edit()->text(), "ba");
}

void TextViewerTest::cancelChangesNothing()
{
    open("a");
    QTest::keyClicks(edit(), "b");
    child<QPushButton>("value.cancel")->click();
    QTRY_VERIFY(!m_viewer);
    QVERIFY(!m_taken.isValid());
}

void TextViewerTest::escapeAsksOnce()
{
    open("a");
    QTest::keyClicks(edit(), "b");
    QTest::keyClick(edit(), Qt::Key_Escape);
    QVERIFY(m_viewer->isVisible());
    QVERIFY(child<QLabel>("value.message")->isVisible());
    QTest::keyClick(edit(), Qt::Key_Escape);
    QTRY_VERIFY(!m_viewer);
    QVERIFY(!m_taken.isValid());
}

void TextViewerTest::isReadOnlyWithoutASetter()
{
    open("a", true);
    QTest::keyClicks(edit(), "b");
    QTest::keyClick(edit(), Qt::Key_Delete);
    edit()->paste();
    QCOMPARE(edit()->text(), "a");
    QVERIFY(!child<QPushButton>("value.ok"));
    QVERIFY(!child<QAction>("viewer.load"));
    QTest::keyClick(edit(), Qt::Key_Escape);
    QTRY_VERIFY(!m_viewer);
}

void TextViewerTest::loadsAndSavesFiles()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.txt");
    const QString text = QString("\ufeffa\r\nb\rc\n") + QChar(0) + "😀";
    QVERIFY(!writeTextFile(path, text));
    open("before");
    m_viewer->load(path);
    QCOMPARE(edit()->text(), text);
    edit()->undo();
    QCOMPARE(edit()->text(), "before");
    m_viewer->save(path);
    QCOMPARE(readTextFile(path).value(), "before");
    QGuiApplication::clipboard()->setText("clip");
    child<QAction>("viewer.pasteAll")->trigger();
    QCOMPARE(edit()->text(), "clip");
}

void TextViewerTest::refusesOtherEncodings()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.txt");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("a\xff\xfe");
    file.close();
    open(QString("a") + QChar(0xd800));
    m_viewer->load(path);
    QVERIFY(child<QLabel>("value.message")->text().contains("UTF-8"));
    QCOMPARE(edit()->text().size(), 2);
    m_viewer->save(path);
    QVERIFY(child<QLabel>("value.message")->text().contains("代理项"));
    QCOMPARE(QFileInfo(path).size(), 3);
    m_viewer->load(folder.filePath("missing.txt"));
    QVERIFY(child<QLabel>("value.message")->text().contains("missing.txt"));
}

QTEST_MAIN(TextViewerTest)
#include "TextViewerTest.moc"
