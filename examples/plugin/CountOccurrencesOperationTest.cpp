#include "CountOccurrencesOperation.h"

#include "VariableScope.h"

#include <QDataStream>
#include <QtTest>

#include <memory>

/// Drives the operation as a host does: properties by name, a scope, a run.
class CountOccurrencesOperationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counts_data();
    void counts();
    void fillsEveryType_data();
    void fillsEveryType();
    void refuses_data();
    void refuses();
    void doesNothingWithoutScope();
    void showsWhatItDoes();
    void survivesStorage();
};

namespace {

const QString resultName = QStringLiteral("n");

/// Sets properties by name, those of `settings`.
void configure(Operation *step, const QVariantMap &settings)
{
    step->setProperty("resultVar", resultName);
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        QVERIFY(step->setProperty(setting.key().toUtf8().constData(), setting.value()));
}

/// What a run on the variables leaves in the result variable.
QVariant resultOf(const QVariantMap &settings, VarType resultType = VarType::Int)
{
    VariableScope scope;
    scope.declare(QStringLiteral("line"), VarType::String, QStringLiteral("a-b-c"));
    scope.declare(QStringLiteral("two"), VarType::Int, 2);
    scope.declare(QStringLiteral("list"), VarType::List,
                  QVariantList{QStringLiteral("x"), QVariantList{1, 2.5}});
    scope.declare(resultName, resultType);
    CountOccurrencesOperation step;
    configure(&step, settings);
    step.setVariableScope(&scope);
    step.doOperation();
    return scope.writtenNames().isEmpty() ? QVariant() : scope.get(resultName);
}

} // namespace

void CountOccurrencesOperationTest::counts_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<int>("expected");
    const auto row = [](const char *name, const QString &source, const QString &search,
                        int expected, QVariantMap settings = {}) {
        settings[QStringLiteral("sourceText")] = source;
        settings[QStringLiteral("searchText")] = search;
        QTest::newRow(name) << settings << expected;
    };
    const auto u = [](const char *text) { return QString::fromUtf8(text); };
    const QVariantMap ignoringCase{{u("caseMode"), 1}};
    const auto beginning = [&](const char *count) {
        return QVariantMap{{u("range"), 1}, {u("charCount"), u(count)}};
    };
    row("none", u("abc"), u("x"), 0);
    row("all", u("abc"), u("abc"), 1);
    row("no overlaps", u("aaaaa"), u("aa"), 2);
    row("empty search", u("abc"), u(""), 0);
    row("empty text", u(""), u("a"), 0);
    row("longer than the text", u("a"), u("aa"), 0);
    row("chinese", u("统计出现次数，再统计"), u("统计"), 2);
    row("pair", u("😀a😀"), u("😀"), 2);
    row("case counts", u("aAa"), u("A"), 1);
    row("case does not count", u("aAa"), u("A"), 3, ignoringCase);
    row("variable", u("$line"), u("-"), 2);
    row("missing variable", u("$none"), u("-"), 0);
    row("list", u("$list"), u(", "), 2);
    row("member of a list", u("$list.Count"), u("2"), 1);
    row("a number is shown short", u("1.50"), u("0"), 0);
    row("beginning", u("a,b,c,"), u(","), 1, beginning("3"));
    row("beginning by variable", u("a,b,c,"), u(","), 1, beginning("$two"));
    row("beginning of nothing", u("a,b,c,"), u(","), 0, beginning("0"));
    row("beginning beyond the end", u("a,b,c,"), u(","), 3, beginning("1e300"));
}

void CountOccurrencesOperationTest::counts()
{
    QFETCH(QVariantMap, settings);
    QTEST(resultOf(settings).toInt(), "expected");
}

void CountOccurrencesOperationTest::fillsEveryType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("int") << int(VarType::Int) << QVariant(2);
    QTest::newRow("double") << int(VarType::Double) << QVariant(2.0);
    QTest::newRow("string") << int(VarType::String) << QVariant(QStringLiteral("2"));
    QTest::newRow("bool") << int(VarType::Bool) << QVariant(true);
}

void CountOccurrencesOperationTest::fillsEveryType()
{
    QFETCH(int, type);
    QFETCH(QVariant, expected);
    const QVariantMap settings{{QStringLiteral("sourceText"), QStringLiteral("$line")},
                               {QStringLiteral("searchText"), QStringLiteral("-")}};
    const QVariant result = resultOf(settings, static_cast<VarType>(type));
    QCOMPARE(result.userType(), expected.userType());
    QCOMPARE(result, expected);
}

void CountOccurrencesOperationTest::refuses_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const char *property, const QVariant &value, VarType type,
                        const char *warning) {
        QTest::newRow(name) << QString::fromUtf8(property) << value << int(type)
                            << QString::fromUtf8(warning);
    };
    const VarType fit = VarType::Int;
    row("no result variable", "resultVar", QString(), fit, "未指定结果变量，已跳过");
    row("not declared", "range", 0, VarType::None, "变量 \"n\" 未声明，已跳过");
    row("a list", "range", 0, VarType::List, "变量 \"n\" 不能存放数值，已跳过");
    row("a table", "range", 0, VarType::Table, "变量 \"n\" 不能存放数值，已跳过");
    row("a newer type", "range", 0, static_cast<VarType>(7), "变量 \"n\" 不能存放数值，已跳过");
    row("unknown case mode", "caseMode", 2, fit, "未知大小写方式 2，已跳过");
    row("unknown range", "range", -1, fit, "未知统计范围 -1，已跳过");
    row("no length", "range", 1, fit, "字符数无效，已跳过");
}

void CountOccurrencesOperationTest::refuses()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(int, type);
    QFETCH(QString, warning);
    const QByteArray line = "[CountOccurrences] " + warning.toUtf8();
    QTest::ignoreMessage(QtWarningMsg, line.constData());
    QVERIFY(!resultOf({{property, value}}, static_cast<VarType>(type)).isValid());
}

void CountOccurrencesOperationTest::doesNothingWithoutScope()
{
    CountOccurrencesOperation step;
    step.doOperation();
}

void CountOccurrencesOperationTest::showsWhatItDoes()
{
    CountOccurrencesOperation step;
    configure(&step, {{QStringLiteral("sourceText"), QStringLiteral("$line")},
                      {QStringLiteral("searchText"), QStringLiteral("100%1")}});
    QCOMPARE(step.toString(), QStringLiteral("统计出现次数: 100%1 in $line -> $n"));
    QCOMPARE(step.description(), QStringLiteral("统计 100%1 在 $line 中出现的次数，存入 $n"));
}

void CountOccurrencesOperationTest::survivesStorage()
{
    CountOccurrencesOperation step;
    configure(&step, {{QStringLiteral("sourceText"), QStringLiteral("$line")},
                      {QStringLiteral("searchText"), QStringLiteral("x")},
                      {QStringLiteral("caseMode"), 1},
                      {QStringLiteral("range"), 1},
                      {QStringLiteral("charCount"), QStringLiteral("3")}});
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    step.saveOperation(out);
    CountOccurrencesOperation loaded;
    QDataStream in(record);
    loaded.loadOperation(in);
    QCOMPARE(in.status(), QDataStream::Ok);
    QVERIFY(in.atEnd());
    const std::unique_ptr<Operation> copy(step.clone(nullptr));

    const QMetaObject &meta = CountOccurrencesOperation::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QCOMPARE(property.read(&loaded), property.read(&step));
        QCOMPARE(property.read(copy.get()), property.read(&step));
    }
}

QTEST_GUILESS_MAIN(CountOccurrencesOperationTest)

#include "CountOccurrencesOperationTest.moc"
