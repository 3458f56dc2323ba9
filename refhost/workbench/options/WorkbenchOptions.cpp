#include "refhost/workbench/options/WorkbenchOptions.h"

#include "refhost/engine/NameIndex.h"
#include "refhost/engine/ProgramArguments.h"
#include "refhost/workbench/look/Appearance.h"
#include "refhost/workbench/look/Language.h"
#include "refhost/workbench/look/Remembered.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace {

constexpr int largestSide = 16384;

Problem usage(const QString &message)
{
    return {Problem::Reason::UnfitValue, {}, {}, message};
}

QString pluginName()
{
    return QStringLiteral("plugin");
}
QString styleName()
{
    return QStringLiteral("style");
}
QString languageName()
{
    return QStringLiteral("lang");
}
QString screenshotName()
{
    return QStringLiteral("screenshot");
}
QString sizeName()
{
    return QStringLiteral("size");
}
QString stepName()
{
    return QStringLiteral("step");
}
QString runName()
{
    return QStringLiteral("run");
}
QString pauseName()
{
    return QStringLiteral("pause-at");
}
QString helpName()
{
    return QStringLiteral("help");
}
QString versionName()
{
    return QStringLiteral("version");
}

/// The options with a value of which only one has a meaning.
QStringList singleOptions()
{
    return {styleName(), languageName(), stepName(), pauseName(), screenshotName(), sizeName()};
}

QStringList repeatableOptions()
{
    return {pluginName()};
}

QStringList flags()
{
    return {runName(), helpName(), versionName()};
}

QString choices(const QStringList &names)
{
    return names.join(QLatin1String(", "));
}

/// The language an argument names, as "--lang=en" or as what follows "--lang".
QString givenLanguage(const QStringList &arguments)
{
    const QString option = QLatin1String("--") + languageName();
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments.at(i) == option)
            return arguments.value(i + 1);
        if (arguments.at(i).startsWith(option + QLatin1Char('=')))
            return arguments.at(i).mid(option.size() + 1);
    }
    return {};
}

} // namespace

void WorkbenchOptions::addOptions(QCommandLineParser &parser)
{
    const QString file = tr("文件");
    const QString number = tr("步号");
    parser.setApplicationDescription(tr("编辑、试运行桌面自动化任务，并试用其插件。"));
    parser.addPositionalArgument(tr("任务"), tr("要打开的任务文件，JSON 或打包格式。"),
                                 tr("[任务]"));
    parser.addOptions({
        {pluginName(), tr("加载这个插件，代替程序自带的；可重复。文件改变时重新加载。"), file},
        {styleName(), tr("窗口的外观：%1。").arg(choices(appearanceNames())), tr("名称")},
        {languageName(), tr("窗口的语言：%1。").arg(choices(languageNames())), tr("语言")},
        {stepName(), tr("选中这一步，从 1 开始计数。"), number},
        {runName(), tr("打开后运行任务。")},
        {pauseName(), tr("打开后运行任务，在这一步之前暂停。"), number},
        {screenshotName(), tr("把窗口画成 PNG 图片写入这个文件，然后退出。"), file},
        {sizeName(), tr("图片的大小，以逻辑像素计，默认 1280x800。"), tr("宽x高")},
        {{QStringLiteral("h"), helpName()}, tr("显示这段说明。")},
        {{QStringLiteral("v"), versionName()}, tr("显示版本。")},
    });
}

QString WorkbenchOptions::languageIn(const QStringList &arguments)
{
    const QString given = givenLanguage(arguments);
    return languageNames().contains(given) ? given : rememberedLanguage();
}

QString WorkbenchOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    return parser.helpText();
}

QString WorkbenchOptions::versionText()
{
    return QCoreApplication::applicationName() + QLatin1Char(' ') +
           QCoreApplication::applicationVersion();
}

Result<WorkbenchOptions> WorkbenchOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    const bool understood = parser.parse(arguments);
    if (!parser.unknownOptionNames().isEmpty())
        return usage(
            unknownOption(argumentWithOption(parser.unknownOptionNames().constFirst(), arguments)));
    if (!understood)
        return usage(parser.errorText());
    if (const auto problem = findRepeatedOption(parser))
        return *problem;
    WorkbenchOptions options;
    options.language = languageIn(arguments);
    if (const auto problem = options.read(parser))
        return *problem;
    return options;
}

QString WorkbenchOptions::unknownOption(const QString &given)
{
    QString bare = given;
    while (bare.startsWith(QLatin1Char('-')))
        bare.remove(0, 1);
    const QString near = nearestName(bare, singleOptions() + repeatableOptions() + flags());
    return near.isEmpty() ? tr("没有选项“%1”。").arg(given)
                          : tr("没有选项“%1”；是否指“--%2”？").arg(given, near);
}

std::optional<Problem> WorkbenchOptions::findRepeatedOption(const QCommandLineParser &parser)
{
    const QStringList names = singleOptions();
    for (const QString &name : names) {
        const QStringList values = parser.values(name);
        if (values.size() > 1) {
            return usage(
                tr("选项“%1”给出了 %2 次；应只给一次。").arg(name, QString::number(values.size())));
        }
    }
    return std::nullopt;
}

std::optional<Problem> WorkbenchOptions::read(const QCommandLineParser &parser)
{
    helpWanted = parser.isSet(helpName());
    versionWanted = parser.isSet(versionName());
    if (helpWanted || versionWanted)
        return std::nullopt;
    const QStringList tasks = parser.positionalArguments();
    if (tasks.size() > 1)
        return usage(tr("给出了 %1 个任务；一个窗口只打开一个。").arg(tasks.size()));
    task = tasks.value(0);
    plugins = parser.values(pluginName());
    if (auto problem = readNames(parser))
        return problem;
    if (auto problem = readSize(parser))
        return problem;
    return readSteps(parser);
}

std::optional<Problem> WorkbenchOptions::readNames(const QCommandLineParser &parser)
{
    style =
        parser.isSet(styleName()) ? parser.value(styleName()).toLower() : rememberedAppearance();
    if (!appearanceNames().contains(style)) {
        return usage(tr("没有外观“%1”；可用的有 %2。")
                         .arg(parser.value(styleName()), choices(appearanceNames())));
    }
    const QString given = parser.value(languageName());
    if (parser.isSet(languageName()) && !languageNames().contains(given)) {
        return usage(tr("没有语言“%1”；可用的有 %2。").arg(given, choices(languageNames())));
    }
    screenshot = parser.value(screenshotName());
    for (const QString &name : {pluginName(), screenshotName()}) {
        if (parser.values(name).contains(QString()))
            return usage(tr("选项“%1”缺少文件名。").arg(name));
    }
    return std::nullopt;
}

std::optional<Problem> WorkbenchOptions::readSize(const QCommandLineParser &parser)
{
    if (!parser.isSet(sizeName()))
        return std::nullopt;
    if (screenshot.isEmpty())
        return usage(tr("选项“size”要与“screenshot”一起用。"));
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(parser.value(sizeName()));
    size = {match.captured(1).toInt(), match.captured(2).toInt()};
    const QSize largest(largestSide, largestSide);
    if (!size.isEmpty() && size.boundedTo(largest) == size)
        return std::nullopt;
    return usage(tr("大小“%1”无法使用；应为宽x高，各为 1 到 %2。")
                     .arg(parser.value(sizeName()), QString::number(largestSide)));
}

std::optional<Problem> WorkbenchOptions::readSteps(const QCommandLineParser &parser)
{
    run = parser.isSet(runName());
    if (run && parser.isSet(pauseName()))
        return usage(tr("选项“run”和“pause-at”只能用一个。"));
    const auto read = [&](const QString &name, int &number) -> std::optional<Problem> {
        if (!parser.isSet(name))
            return std::nullopt;
        bool isNumber = false;
        number = parser.value(name).toInt(&isNumber);
        if (isNumber && number > 0)
            return std::nullopt;
        return usage(tr("步号“%1”无法使用；应为从 1 开始的整数。").arg(parser.value(name)));
    };
    if (auto problem = read(stepName(), step))
        return problem;
    if (auto problem = read(pauseName(), pauseAt))
        return problem;
    if (task.isEmpty() && (run || step > 0 || pauseAt > 0))
        return usage(tr("没有给出要打开的任务。"));
    return std::nullopt;
}
