#include "tests/support/Annotations.h"
#include "tests/support/QuietTest.h"
#include "tests/support/RecordingTranslator.h"
#include "tests/support/Records.h"

#include "operations/TextAppendOperation.h"

#include "VariableScope.h"

#include <QtTest>

#include <memory>

class TextAppendOperationTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void identity();
    void annotations();
    void defaults();
    void accessors();
    void results_data();
    void results();
    void withoutScope();
    void withoutResultVariable();
    void unfitResultVariable_data();
    void unfitResultVariable();
    void dollarBelongsToTheResultName();
    void presentation_data();
    void presentation();
    void translations();
    void record_data();
    void record();
    void truncatedRecord();
    void cloning();
};

namespace {

VariableScope sampleScope()
{
    VariableScope scope;
    scope.declare("s", VarType::String, "text");
    scope.declare("list", VarType::List, QVariantList{"x", 1, QVariantList{"y", "z"}});
    scope.declare("r", VarType::String, "old");
    return scope;
}

void configure(TextAppendOperation &operation, const QString &source, const QString &added,
               const QString &result)
{
    operation.setSourceText(source);
    operation.setAppendText(added);
    operation.setResultVar(result);
}

} // namespace

void TextAppendOperationTest::identity()
{
    const TextAppendOperation operation;
    QCOMPARE(operation.root(), QString("文本"));
    QCOMPARE(operation.typeId(), QString("text.append"));
    QCOMPARE(operation.typeName(), QString("添加文本"));
    QCOMPARE(operation.icon(), QString(":/images/text_append.svg"));
    QVERIFY(!operation.isContainer());
    QCOMPARE(operation.childCount(), 0);
}

void TextAppendOperationTest::annotations()
{
    const QStringList expected{
        "prop_sourceText = 原文本",
        "editor_sourceText = VARREF",
        "varref_kind_sourceText = string",
        "prop_appendText = 要添加的文本",
        "editor_appendText = VARREF",
        "varref_kind_appendText = string",
        "prop_resultVar = 新文本保存到字符串变量",
        "editor_resultVar = VARNAME:STRING",
        "varname_type_resultVar = string",
    };
    QCOMPARE(annotationsOf(TextAppendOperation::staticMetaObject), expected);
}

void TextAppendOperationTest::defaults()
{
    QObject parent;
    auto *const operation = new TextAppendOperation(&parent);
    QCOMPARE(operation->parent(), &parent);
    QCOMPARE(operation->sourceText(), QString());
    QCOMPARE(operation->appendText(), QString());
    QCOMPARE(operation->resultVar(), QString());
    QVERIFY(!TextAppendOperation().parent());
}

void TextAppendOperationTest::accessors()
{
    TextAppendOperation operation;
    configure(operation, "a", "b", "c");
    QCOMPARE(operation.property("sourceText"), QVariant("a"));
    QCOMPARE(operation.property("appendText"), QVariant("b"));
    QCOMPARE(operation.property("resultVar"), QVariant("c"));
    QVERIFY(operation.setProperty("sourceText", "$x"));
    QVERIFY(operation.setProperty("appendText", ""));
    QVERIFY(operation.setProperty("resultVar", " 结果 "));
    QCOMPARE(operation.sourceText(), QString("$x"));
    QCOMPARE(operation.appendText(), QString(""));
    QCOMPARE(operation.resultVar(), QString(" 结果 "));
}

void TextAppendOperationTest::results_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("expected");

    QTest::newRow("both empty") << ""
                                << ""
                                << "";
    QTest::newRow("literals") << "abc"
                              << "def"
                              << "abcdef";
    QTest::newRow("chinese") << "文本"
                             << "操作"
                             << "文本操作";
    QTest::newRow("number-like source") << "007"
                                        << "x"
                                        << "7x";
    QTest::newRow("number-like addition") << "abc"
                                          << "1.50"
                                          << "abc1.5";
    QTest::newRow("two numbers are not added") << "1"
                                               << "2"
                                               << "12";
    QTest::newRow("spaces of a text are kept") << " a "
                                               << " b"
                                               << " a  b";
    QTest::newRow("spaces of a number are not") << " 5 "
                                                << " 6 "
                                                << "56";
    QTest::newRow("reference") << "$s"
                               << "!"
                               << "text!";
    QTest::newRow("reference added") << ">"
                                     << "$s"
                                     << ">text";
    QTest::newRow("same variable twice") << "$s"
                                         << "$s"
                                         << "texttext";
    QTest::newRow("result as source") << "$r"
                                      << "+"
                                      << "old+";
    QTest::newRow("list") << "$list"
                          << "."
                          << "x, 1, y, z.";
    QTest::newRow("list member") << "n="
                                 << "$list.Count"
                                 << "n=3";
    QTest::newRow("missing variable") << "$none"
                                      << "b"
                                      << "b";
    QTest::newRow("unknown member") << "a"
                                    << "$s.Count"
                                    << "a";
    QTest::newRow("dollar alone") << "$"
                                  << "$"
                                  << "$$";
    QTest::newRow("no escapes") << "a"
                                << "\\n"
                                << "a\\n";
    QTest::newRow("line feed") << "a\n"
                               << "b"
                               << "a\nb";
    QTest::newRow("surrogates joined")
        << QString(QChar(0xD83D)) << QString(QChar(0xDE00)) << "\U0001F600";
    QTest::newRow("null character") << QString(QChar(0)) << "b" << QString(QChar(0)) + "b";
}

void TextAppendOperationTest::results()
{
    QFETCH(QString, source);
    QFETCH(QString, added);
    QFETCH(QString, expected);
    VariableScope scope = sampleScope();
    TextAppendOperation operation;
    configure(operation, source, added, "r");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QCOMPARE(scope.get("r"), QVariant(expected));
    QCOMPARE(scope.get("r").userType(), int(QMetaType::QString));
    QCOMPARE(scope.writtenNames(), QStringList("r"));
}

void TextAppendOperationTest::withoutScope()
{
    TextAppendOperation operation;
    operation.doOperation();
    configure(operation, "a", "b", "r");
    operation.doOperation();
    QCOMPARE(takeWarnings(), QStringList());
}

void TextAppendOperationTest::withoutResultVariable()
{
    VariableScope scope = sampleScope();
    scope.declare("", VarType::String, "nameless");
    TextAppendOperation operation;
    configure(operation, "a", "b", "");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QCOMPARE(takeWarnings(), QStringList("[TextAppend] 未指定结果变量，已跳过"));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void TextAppendOperationTest::unfitResultVariable_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("undeclared") << 0;
    QTest::newRow("int") << 1;
    QTest::newRow("double") << 2;
    QTest::newRow("bool") << 4;
    QTest::newRow("list") << 5;
    QTest::newRow("table") << 6;
    QTest::newRow("unknown") << 99;
}

void TextAppendOperationTest::unfitResultVariable()
{
    QFETCH(int, type);
    VariableScope scope = sampleScope();
    scope.declare("n", static_cast<VarType>(type));
    TextAppendOperation operation;
    configure(operation, "a", "b", "n");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 \"n\" 未声明为字符串，已跳过"));
    QCOMPARE(scope.writtenNames(), QStringList());
}

void TextAppendOperationTest::dollarBelongsToTheResultName()
{
    VariableScope scope = sampleScope();
    TextAppendOperation operation;
    configure(operation, "a", "b", "$r");
    operation.setVariableScope(&scope);
    operation.doOperation();
    QCOMPARE(takeWarnings(), QStringList("[TextOp] 变量 \"$r\" 未声明为字符串，已跳过"));

    scope.declare("$r", VarType::String);
    operation.doOperation();
    QCOMPARE(scope.get("$r"), QVariant("ab"));
    QCOMPARE(scope.get("r"), QVariant("old"));
}

void TextAppendOperationTest::presentation_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QString>("sentence");

    QTest::newRow("all set") << "$a"
                             << "x"
                             << "r"
                             << "添加文本: $a + x -> $r"
                             << "将 x 添加到 $a 之后，存入 $r";
    QTest::newRow("result with dollar") << "$a"
                                        << "x"
                                        << "$r"
                                        << "添加文本: $a + x -> $r"
                                        << "将 x 添加到 $a 之后，存入 $r";
    QTest::newRow("defaults") << ""
                              << ""
                              << ""
                              << "添加文本:  +  -> "
                              << "将  添加到  之后，存入 ";
    QTest::newRow("numbers as stored") << "007"
                                       << "1.50"
                                       << "r"
                                       << "添加文本: 007 + 1.50 -> $r"
                                       << "将 1.50 添加到 007 之后，存入 $r";
    QTest::newRow("marker of a later value") << "%3"
                                             << "x"
                                             << "r"
                                             << "添加文本: x + x -> $r"
                                             << "将 x 添加到 $r 之后，存入 $r";
    QTest::newRow("marker of an earlier value") << "%1"
                                                << "x"
                                                << "r"
                                                << "添加文本: x + $r -> %4"
                                                << "将 x 添加到 $r 之后，存入 %3";
    QTest::newRow("marker in the added text") << "a"
                                              << "%2"
                                              << "r"
                                              << "添加文本: a + $r -> %4"
                                              << "将 a 添加到 a 之后，存入 $r";
    QTest::newRow("marker beyond the pattern") << "%9"
                                               << "x"
                                               << "r"
                                               << "添加文本: %9 + x -> $r"
                                               << "将 x 添加到 %9 之后，存入 $r";
    QTest::newRow("percent signs") << "%"
                                   << "100%"
                                   << "r"
                                   << "添加文本: % + 100% -> $r"
                                   << "将 100% 添加到 % 之后，存入 $r";
}

void TextAppendOperationTest::presentation()
{
    QFETCH(QString, source);
    QFETCH(QString, added);
    QFETCH(QString, result);
    TextAppendOperation operation;
    configure(operation, source, added, result);
    QTEST(operation.toString(), "summary");
    QTEST(operation.description(), "sentence");
}

void TextAppendOperationTest::translations()
{
    RecordingTranslator translator;
    const TextAppendOperation operation;
    translator.takeRequests();
    operation.root();
    QCOMPARE(translator.takeRequests(), QStringList("TextAppendOperation|文本"));
    operation.typeName();
    QCOMPARE(translator.takeRequests(), QStringList("TextAppendOperation|添加文本"));
    operation.description();
    QCOMPARE(translator.takeRequests(),
             QStringList("TextAppendOperation|将 %1 添加到 %2 之后，存入 %3"));
    operation.toString();
    QCOMPARE(translator.takeRequests(), QStringList("TextAppendOperation|添加文本"));
    operation.typeId();
    operation.icon();
    QCOMPARE(translator.takeRequests(), QStringList());
}

void TextAppendOperationTest::record_data()
{
    QTest::addColumn<int>("byteOrder");
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("expected");

    // The host's 32 bits, then length in bytes and UTF-16 text of "a" and "文", a null text.
    const QByteArray big = QByteArray::fromHex("01020304 00000002 0061 00000002 6587 ffffffff");
    const QByteArray little = QByteArray::fromHex("04030201 02000000 6100 02000000 8765 ffffffff");
    const QPair<const char *, int> versions[] = {{"4.6", QDataStream::Qt_4_6},
                                                 {"5.0", QDataStream::Qt_5_0},
                                                 {"5.6", QDataStream::Qt_5_6},
                                                 {"5.12", QDataStream::Qt_5_12},
                                                 {"5.15", QDataStream::Qt_5_15}};
    for (const auto &[name, version] : versions) {
        QTest::addRow("big endian, %s", name) << int(QDataStream::BigEndian) << version << big;
        QTest::addRow("little endian, %s", name)
            << int(QDataStream::LittleEndian) << version << little;
    }
}

void TextAppendOperationTest::record()
{
    QFETCH(int, byteOrder);
    QFETCH(int, version);
    QFETCH(QByteArray, expected);
    const RecordForm form{static_cast<QDataStream::ByteOrder>(byteOrder),
                          static_cast<QDataStream::Version>(version)};
    TextAppendOperation operation;
    QCOMPARE(loadRecord(operation, expected, form), QDataStream::Ok);
    QCOMPARE(operation.sourceText(), QString("a"));
    QCOMPARE(operation.appendText(), QString("文"));
    QVERIFY(operation.resultVar().isNull());
    QCOMPARE(saveRecord(operation, form), expected);
}

void TextAppendOperationTest::truncatedRecord()
{
    TextAppendOperation operation;
    configure(operation, "source", "added", "result");
    const QByteArray record = saveRecord(operation);
    for (int size = 0; size < record.size(); ++size) {
        TextAppendOperation loaded;
        QCOMPARE(loadRecord(loaded, record.left(size)), QDataStream::ReadPastEnd);
    }
}

void TextAppendOperationTest::cloning()
{
    VariableScope scope = sampleScope();
    TextAppendOperation operation;
    loadRecord(operation, QByteArray::fromHex("01020304"));
    configure(operation, "a", "b", "r");
    operation.setVariableScope(&scope);

    QObject parent;
    auto *const child = qobject_cast<TextAppendOperation *>(operation.clone(&parent));
    QVERIFY(child);
    QCOMPARE(child->parent(), &parent);
    QCOMPARE(saveRecord(*child), saveRecord(operation));

    // The copy has no scope, so that running it does nothing, and a life of its own.
    const std::unique_ptr<Operation> orphan(operation.clone(nullptr));
    QVERIFY(!orphan->parent());
    orphan->doOperation();
    QCOMPARE(scope.get("r"), QVariant("old"));
    orphan->setProperty("sourceText", "other");
    QCOMPARE(operation.sourceText(), QString("a"));
}

QTEST_GUILESS_MAIN(TextAppendOperationTest)

#include "TextAppendOperationTest.moc"
