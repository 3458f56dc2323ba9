#include "tests/support/QuietTest.h"

#include "tests/mutation/MutationFinder.h"

#include <QtTest>

namespace {

/// The mutations of a source as "original -> replacement".
QStringList changesOf(const QString &source)
{
    QStringList changes;
    const QVector<Mutation> mutations = MutationFinder("a.cpp", source).all();
    for (const Mutation &mutation : mutations)
        changes.append(mutation.original + " -> " + mutation.replacement);
    return changes;
}

} // namespace

class MutationFinderTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothing_data();
    void nothing();
    void statements_data();
    void statements();
    void declarations_data();
    void declarations();
    void place();
    void severalLines();
    void unusualEnds_data();
    void unusualEnds();
};

void MutationFinderTest::nothing_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("empty") << "";
    QTest::newRow("comment") << "// if (a < 1) return \"x\";\n";
    QTest::newRow("comment over two lines") << "// a \\\n if (a < 1)\nint b;";
    QTest::newRow("comment in stars") << "/* a < 1\n * 'x' */ int b;";
    QTest::newRow("include") << "#include \"a.h\"\n#include <map>\n  #  define A 1\n";
    QTest::newRow("definition over two lines") << "#define A \\\n 1 < 2\nint b;";
    QTest::newRow("raw text") << "auto t = R\"(a \"1\" < 2)\";";
    QTest::newRow("raw text with a mark") << "auto t = u8R\"x(a)\" 1)x\";";
    QTest::newRow("template arguments") << "std::map<int, QList<int>> a;";
    QTest::newRow("template head") << "template <typename T> void f(const T &a, T &&b);";
    QTest::newRow("assertion") << "static_assert(sizeof(int) == 4, \"x\");";
    QTest::newRow("property") << "Q_PROPERTY(int a READ a WRITE b REVISION 1)";
    QTest::newRow("plug-in data") << "Q_PLUGIN_METADATA(IID \"x\")";
    QTest::newRow("linkage") << "extern \"C\" void f();";
    QTest::newRow("pure function") << "virtual int f() const = 0;";
    QTest::newRow("operator") << "bool operator<(A a, A b); A operator++();";
    QTest::newRow("pointers") << "int *f(const char *a, A &b); auto g() -> A * {}";
    QTest::newRow("declarations of functions") << "struct A { A(); QString left(int n); };";
    QTest::newRow("empty values") << "void f() { return {}; } void g() { return QString(); }";
    QTest::newRow("local variables") << "void f() { A a; A b(c); const A d = e; }";
}

void MutationFinderTest::nothing()
{
    QFETCH(QString, source);
    QCOMPARE(changesOf(source), QStringList());
}

void MutationFinderTest::statements_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("changes");
    const auto row = [](const char *statement, const QStringList &changes) {
        QTest::newRow(statement) << statement << changes;
    };
    row("auto b = x < y;", {"< -> <="});
    row("auto b = x >= y;", {">= -> >"});
    row("auto b = x == y<int>;", {"== -> !="});
    row("auto b = x->y;", {});
    row("auto b = x << y;", {});
    row("auto b = x + y;", {"+ -> -"});
    row("auto b = -x;", {"- -> "});
    row("auto b = x * y;", {"* -> /"});
    row("b += x;", {"b += x -> ", "+= -> -="});
    row("++b;", {"++ -> --"});
    row("auto b = 7u;", {"7u -> 8u"});
    row("auto b = 0.5;", {"0.5 -> 1.5"});
    row("auto b = 0xFF;", {"0xFF -> 0x100"});
    row("auto b = 1'000;", {"1'000 -> 2'000"});
    row("auto b = true;", {"true -> false"});
    row("if (a) b();", {"a -> !(a)", "b() -> "});
    row("if (a == c) g++;", {"== -> !=", "++ -> --"});
    row("if (auto i = c; i) g++;", {"i -> !(i)", "++ -> --"});
    row("while (a && c) g++;", {"a && c -> !(a && c)", "&& -> ||", "++ -> --"});
    row("if (!a) g++;", {"!a -> !(!a)", "++ -> --"});
    row("if (!a || c) g++;", {"!a || c -> !(!a || c)", "! -> ", "|| -> &&", "++ -> --"});
    row("auto b = !a.c(d);", {"! -> "});
    row("auto b = a ? c : d;", {"c : d -> d : c"});
    row("auto b = f(a ? c : d, e);", {"c : d -> d : c"});
    row("auto b = a ? A::c : e ? g : h;",
        {"A::c : e ? g : h -> e ? g : h : A::c", "g : h -> h : g"});
    row("auto b = a ? e ? g : h : d;", {"e ? g : h : d -> d : e ? g : h", "g : h -> h : g"});
    row("for (int i = 1; i < n; ++i) g(i);", {"1 -> 2", "< -> <=", "++ -> --", "g(i) -> "});
    row("auto b = a.left(n);", {"left -> right"});
    row("auto left = a;", {});
    row("auto b = std::min(x, y);", {"min -> max"});
    row("auto b = a.mid(x, f(y, z));", {", f(y, z) -> "});
    row("auto b = std::clamp(f(x), y, z);", {"std::clamp(f(x), y, z) -> f(x)"});
    row("auto b = a.trimmed().c();", {".trimmed() -> "});
    row("auto b = a.c(d).isEmpty() && e;", {"a.c(d).isEmpty() -> !a.c(d).isEmpty()", "&& -> ||"});
    row("auto b = !a.isEmpty();", {"! -> "});
    row("if (a.isEmpty()) g++;", {"a.isEmpty() -> !(a.isEmpty())", "++ -> --"});
    row("auto b = a.isEmpty() ? c : d;", {"c : d -> d : c"});
    row("auto b = a.c(Qt::KeepEmptyParts);", {"KeepEmptyParts -> SkipEmptyParts"});
    row("a.b(c)->d();", {"a.b(c)->d() -> "});
    row("A::b(c);", {"A::b(c) -> "});
    row("if (a) g++; else b();", {"a -> !(a)", "++ -> --", "b() -> "});
    row("a.b = c;", {"a.b = c -> "});
    row("*a = c;", {"*a = c -> "});
    row("a() << b;", {"a() << b -> "});
    row("return;", {"return -> "});
    row("return a;", {"a -> {}"});
    row("return a.b(c);", {"a.b(c) -> {}"});
    row("return true;", {"true -> false"});
    row("return 0;", {"0 -> 1"});
    row("return tr(\"text\");", {"\"text\" -> \"xext\""});
    row("return {a, true};", {"{a, true} -> {}", "true -> false"});
    row("auto b = \"\";", {"\"\" -> \"x\""});
    row("auto b = \"x1\";", {"\"x1\" -> \"y1\""});
    row("auto b = u8\"\\n1\";", {"u8\"\\n1\" -> u8\"x1\""});
    row("auto b = \"\\\"\" \"//\";", {"\"\\\"\" -> \"x\"", "\"//\" -> \"x/\""});
    row("auto b = \"\U0001F600!\";", {"\"\U0001F600!\" -> \"x!\""});
    row("auto b = '\\'';", {"'\\'' -> 'x'"});
}

void MutationFinderTest::statements()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, changes);
    QCOMPARE(changesOf("void f()\n{\n    " + statement + "\n}\n"), changes);
}

void MutationFinderTest::declarations_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("changes");
    QTest::newRow("class information")
        << "Q_CLASSINFO(\"ab\", \"\")" << QStringList({"\"ab\" -> \"xb\"", "\"\" -> \"x\""});
    QTest::newRow("member") << "struct A { int a = 0; };" << QStringList({"0 -> 1"});
    QTest::newRow("setter in a class")
        << "struct A { A(); void b(int c) { a = c; } };" << QStringList({"a = c -> "});
    QTest::newRow("getter in a class")
        << "class A { int b() const { return a; } };" << QStringList({"a -> {}"});
    QTest::newRow("lambda") << "auto a = [] { return b; };" << QStringList({"b -> {}"});
    QTest::newRow("constructor") << "A::A() : b(c) { d(); }" << QStringList({"d() -> "});
    QTest::newRow("after an annotation")
        << "Q_PROPERTY(int a READ a)\nint b = 1;" << QStringList({"1 -> 2"});
}

void MutationFinderTest::declarations()
{
    QFETCH(QString, source);
    QFETCH(QStringList, changes);
    QCOMPARE(changesOf(source), changes);
}

void MutationFinderTest::place()
{
    const QString source = "// 文本\nint a;\n    int b = 1; // one\n";
    const QVector<Mutation> mutations = MutationFinder("folder/a.cpp", source).all();
    QCOMPARE(mutations.size(), 1);
    const Mutation &mutation = mutations.first();
    QCOMPARE(mutation.file, QString("folder/a.cpp"));
    QCOMPARE(mutation.line, 3);
    QCOMPARE(mutation.column, 13);
    QCOMPARE(mutation.what, QString("constant"));
    QCOMPARE(mutation.before, QString("int b = 1; // one"));
    QCOMPARE(mutation.after, QString("int b = 2; // one"));
    QCOMPARE(mutated(source, mutation), QString("// 文本\nint a;\n    int b = 2; // one\n"));
    QCOMPARE(describe(mutation), QString("folder/a.cpp:3:13: constant\n"
                                         "    - int b = 1; // one\n"
                                         "    + int b = 2; // one\n"));
}

void MutationFinderTest::severalLines()
{
    const QString source = "int f()\n{\n    return a +\n        b;\n}\n";
    const QVector<Mutation> mutations = MutationFinder("a.cpp", source).all();
    QCOMPARE(mutations.size(), 2);
    QCOMPARE(mutations.at(0).before, QString("return a + b;"));
    QCOMPARE(mutations.at(0).after, QString("return {};"));
    QCOMPARE(mutations.at(1).before, QString("return a +"));
    QCOMPARE(mutations.at(1).after, QString("return a -"));
}

void MutationFinderTest::unusualEnds_data()
{
    QTest::addColumn<QString>("source");
    const QStringList sources{"/* open",
                              "\"open",
                              "'o",
                              "R\"(open",
                              "void f() {",
                              "f() { (",
                              "f() { )",
                              "f() { a ?",
                              "return",
                              "f() { return",
                              "if (",
                              "f() { if",
                              "Q_PROPERTY(",
                              "extern",
                              "f() { clamp(a,",
                              "f() { !",
                              "f() { x = ",
                              "}",
                              "f() { a ? b : c ? d",
                              "1"};
    for (const QString &source : sources)
        QTest::newRow(qPrintable(source)) << source;
}

void MutationFinderTest::unusualEnds()
{
    QFETCH(QString, source);
    const QVector<Mutation> mutations = MutationFinder("a.cpp", source).all();
    for (const Mutation &mutation : mutations)
        QVERIFY(mutated(source, mutation) != source);
}

QTEST_GUILESS_MAIN(MutationFinderTest)

#include "MutationFinderTest.moc"
