#include "refhost/workbench/options/WorkbenchOptions.h"

#include "tests/support/OprunProcess.h"
#include "tests/support/QuietTest.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// The long options a text names.
QSet<QString> optionsIn(const QString &text)
{
    static const QRegularExpression option("(?<![-\\w])--[a-z][a-z-]*");
    QSet<QString> options;
    auto match = option.globalMatch(text);
    while (match.hasNext())
        options.insert(match.next().captured());
    return options;
}

} // namespace

/// The command line of the workbench, as it is read and as a process obeys it.
class WorkbenchOptionsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void readsAll();
    void hasDefaults();
    void manualPageTellsAllOptions();
    void refusesWhatMakesNoSense_data();
    void refusesWhatMakesNoSense();
    void speaksTheLanguageItIsTold_data();
    void speaksTheLanguageItIsTold();

    void answersWithoutAScreen_data();
    void answersWithoutAScreen();
    void complainsInOneLine_data();
    void complainsInOneLine();
    void refusesNamesThatAreNotUtf8();
    void drawsTheWindow_data();
    void drawsTheWindow();
    void drawsALook();
    void leavesNothingBehind();

private:
    OprunOutcome run(const QStringList &arguments, QMap<QString, QString> environment = {}) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    const QString m_task = EXAMPLE_FOLDER "/invoice.json";
};

void WorkbenchOptionsTest::init()
{
    QuietTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

OprunOutcome WorkbenchOptionsTest::run(const QStringList &arguments,
                                       QMap<QString, QString> environment) const
{
    const QMap<QString, QString> base{{"QT_QPA_PLATFORM", "offscreen"},
                                      {"XDG_CONFIG_HOME", path("config")},
                                      {"XDG_DATA_HOME", path("data")},
                                      {"XDG_RUNTIME_DIR", m_folder->path()}};
    for (auto variable = base.begin(); variable != base.end(); ++variable) {
        if (!environment.contains(variable.key()))
            environment.insert(variable.key(), variable.value());
    }
    return runProgram(OPWORKBENCH_FILE, arguments, m_folder->path(), environment);
}

void WorkbenchOptionsTest::readsAll()
{
    const auto parsed = WorkbenchOptions::parse(
        {"opworkbench", "--plugin", "a.so", "--plugin=b.so", "--style", "Dark", "--lang", "en",
         "--screenshot", "a.png", "--size", "640x480", "--step", "2", "--pause-at", "3", "t.json"});
    QVERIFY(parsed);
    const WorkbenchOptions &options = parsed.value();
    QCOMPARE(options.plugins, (QStringList{"a.so", "b.so"}));
    QCOMPARE(options.style, QString("dark"));
    QCOMPARE(options.language, QString("en"));
    QCOMPARE(options.screenshot, QString("a.png"));
    QCOMPARE(options.size, QSize(640, 480));
    QCOMPARE(options.step, 2);
    QCOMPARE(options.pauseAt, 3);
    QCOMPARE(options.task, QString("t.json"));
    QVERIFY(!options.run);
}

void WorkbenchOptionsTest::hasDefaults()
{
    const auto parsed = WorkbenchOptions::parse({"opworkbench", "--screenshot", "a.png"});
    QVERIFY(parsed);
    QCOMPARE(parsed.value().size, QSize(1280, 800));
    QCOMPARE(parsed.value().style, QString("light"));
    QCOMPARE(parsed.value().plugins, QStringList());
    QCOMPARE(parsed.value().task, QString());
    QVERIFY(WorkbenchOptions::parse({"opworkbench", "--run", "t.json"}).value().run);
}

void WorkbenchOptionsTest::manualPageTellsAllOptions()
{
    QFile page(MANUAL_PAGE);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).replace("\\-", "-");
    QCOMPARE(optionsIn(manual), optionsIn(WorkbenchOptions::helpText()));
}

void WorkbenchOptionsTest::refusesWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const QStringList &arguments, const char *words) {
        QTest::newRow(name) << arguments << QString::fromUtf8(words);
    };
    row("unknown option", {"--nix"}, "没有选项“--nix”。");
    row("near option", {"--stpe", "1", "a"}, "没有选项“--stpe”；是否指“--step”？");
    row("near option, one dash", {"-step", "1", "a"}, "没有选项“-step”；是否指“--step”？");
    row("two steps", {"--step", "1", "--step=2", "a"}, "选项“step”给出了 2 次；应只给一次。");
    row("two languages", {"--lang", "zh", "--lang", "en"}, "选项“lang”给出了 2 次");
    row("two styles", {"--style", "dark", "--style", "dark"}, "选项“style”给出了 2 次");
    row("two steps to pause at", {"--pause-at", "1", "--pause-at", "2", "a"},
        "“pause-at”给出了 2 次");
    row("two pictures", {"--screenshot", "a", "--screenshot", "b"}, "“screenshot”给出了 2 次");
    row("two sizes", {"--screenshot", "a", "--size", "1x1", "--size", "2x2"}, "“size”给出了 2 次");
    row("missing value", {"--plugin"}, "plugin");
    row("two tasks", {"a", "b"}, "2 个任务");
    row("unknown style", {"--style", "nix"}, "没有外观“nix”；可用的有 light, dark");
    row("unknown language", {"--lang", "fr"}, "没有语言“fr”；可用的有 zh, en");
    row("size without a picture", {"--size", "1x1"}, "screenshot");
    for (const QString size : {"", "12", "12x", "x12", "0x5", "5x0", "-1x5", "99999x5", "1 x 1"}) {
        row(qPrintable("size " + size), {"--screenshot", "a", "--size", size},
            "应为宽x高，各为 1 到 16384");
    }
    row("empty picture", {"--screenshot", ""}, "缺少文件名");
    row("empty plug-in", {"--plugin", ""}, "缺少文件名");
    for (const char *const step : {"0", "-1", "a", ""})
        row(qPrintable(QString("step %1").arg(step)), {"--step", step, "a"}, "从 1 开始");
    row("pause nowhere", {"--pause-at", "x", "a"}, "从 1 开始");
    row("run and pause", {"--run", "--pause-at", "1", "a"}, "只能用一个");
    row("run nothing", {"--run"}, "没有给出要打开的任务");
    row("step of nothing", {"--step", "1"}, "没有给出要打开的任务");
}

void WorkbenchOptionsTest::refusesWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, words);
    const auto parsed = WorkbenchOptions::parse(QStringList{"opworkbench"} + arguments);
    QVERIFY(!parsed);
    QVERIFY2(parsed.problem().toString().contains(words), qPrintable(parsed.problem().toString()));
}

void WorkbenchOptionsTest::speaksTheLanguageItIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("language");
    QTest::newRow("two words") << QStringList{"p", "--lang", "zh", "--nix"} << "zh";
    QTest::newRow("one word") << QStringList{"p", "--nix", "--lang=en"} << "en";
}

void WorkbenchOptionsTest::speaksTheLanguageItIsTold()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, language);
    QCOMPARE(WorkbenchOptions::languageIn(arguments), language);
}

void WorkbenchOptionsTest::answersWithoutAScreen_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("words");
    QTest::newRow("help") << "--help"
                          << "--screenshot";
    QTest::newRow("help, short") << "-h"
                                 << "--pause-at";
    QTest::newRow("version") << "--version"
                             << "opworkbench ";
}

void WorkbenchOptionsTest::answersWithoutAScreen()
{
    QFETCH(QString, option);
    QFETCH(QString, words);
    const OprunOutcome outcome = run({option, "--lang", "zh"}, {{"QT_QPA_PLATFORM", "nix"}});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.out.contains(words), qPrintable(outcome.out));
}

void WorkbenchOptionsTest::complainsInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("words");
    QTest::newRow("bad usage") << QStringList{"--nix"} << 2 << "nix";
    QTest::newRow("no such task") << QStringList{"--screenshot", "a.png", "nix.json"} << 1
                                  << "nix.json：无法读取";
    QTest::newRow("no such folder")
        << QStringList{"--screenshot", "no/a.png", m_task} << 1 << "no/a.png：无法写入";
    QTest::newRow("no such step") << QStringList{"--screenshot", "a.png", "--step", "9", m_task}
                                  << 1 << "9";
    QTest::newRow("no such step to pause at")
        << QStringList{"--screenshot", "a.png", "--pause-at", "9", m_task} << 1 << "9";
}

void WorkbenchOptionsTest::complainsInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, words);
    const OprunOutcome outcome =
        run(QStringList{"--lang", "zh", "--plugin", PLUGIN_FILE} + arguments);
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith("opworkbench: "), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(words), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count('\n'), 1);
    QVERIFY(!QFileInfo::exists(path("a.png")));
}

void WorkbenchOptionsTest::refusesNamesThatAreNotUtf8()
{
    const OprunOutcome outcome = runProgram(
        "/bin/sh", {"-c", "$PROGRAM --lang en --screenshot \"$(printf 'a\\377')\" " + m_task},
        m_folder->path(), {{"PROGRAM", OPWORKBENCH_FILE}, {"QT_QPA_PLATFORM", "offscreen"}});
    QCOMPARE(outcome.err,
             QString("opworkbench: argument 4: \"a\\xff\" is not UTF-8; expected UTF-8\n"));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System),
        QStringList());
}

void WorkbenchOptionsTest::drawsTheWindow_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("as it is") << ""
                              << "1" << QSize(1280, 800);
    QTest::newRow("of a size") << "1000x600"
                               << "1" << QSize(1000, 600);
    QTest::newRow("larger than the screen") << "2100x1500"
                                            << "1" << QSize(2100, 1500);
    QTest::newRow("small") << "200x100"
                           << "1" << QSize(200, 100);
    QTest::newRow("scaled") << "1000x600"
                            << "2" << QSize(2000, 1200);
}

void WorkbenchOptionsTest::drawsTheWindow()
{
    QFETCH(QString, size);
    QFETCH(QString, scale);
    QFETCH(QSize, pixels);
    QStringList arguments{"--plugin", PLUGIN_FILE, "--screenshot", "a.png", m_task};
    if (!size.isEmpty())
        arguments += {"--size", size};
    const OprunOutcome outcome = run(arguments, {{"QT_SCALE_FACTOR", scale}});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(QImage(path("a.png"), "PNG").size(), pixels);
}

void WorkbenchOptionsTest::drawsALook()
{
    const auto brightness = [&](const QString &style) {
        const OprunOutcome outcome =
            run({"--plugin", PLUGIN_FILE, "--style", style, "--screenshot", "a.png", m_task});
        return outcome.status == 0 ? QImage(path("a.png")).pixelColor(640, 400).lightness() : -1;
    };
    QVERIFY(brightness("light") > 150);
    const int dark = brightness("dark");
    QVERIFY(dark >= 0 && dark < 100);
}

void WorkbenchOptionsTest::leavesNothingBehind()
{
    QCOMPARE(run({"--plugin", PLUGIN_FILE, "--run", "--screenshot", "a.png", m_task}).status, 0);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{"a.png"});
}

QTEST_GUILESS_MAIN(WorkbenchOptionsTest)
#include "WorkbenchOptionsTest.moc"
