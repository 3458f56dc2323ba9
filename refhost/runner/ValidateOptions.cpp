#include "refhost/runner/ValidateOptions.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <limits>

namespace {

constexpr int highestLevel = 5;
constexpr int longestTimeout = 86400;

QCommandLineOption listOption()
{
    return {QStringLiteral("list"), QStringLiteral("List the checks instead of running them.")};
}

QCommandLineOption levelOption()
{
    return {QStringLiteral("level"), QStringLiteral("Run the checks up to this level, 1 to 5."),
            QStringLiteral("LEVEL"), QStringLiteral("3")};
}

QCommandLineOption operandsOption()
{
    return {QStringLiteral("operands"),
            QStringLiteral("Run the checks of the host's operand language as well, whatever their "
                           "level.")};
}

QCommandLineOption onlyOption()
{
    return {QStringLiteral("only"),
            QStringLiteral("Run only this check, whatever its level; repeatable."),
            QStringLiteral("ID")};
}

QCommandLineOption seedOption()
{
    return {QStringLiteral("seed"), QStringLiteral("Start random values from this number."),
            QStringLiteral("N"), QStringLiteral("1")};
}

QCommandLineOption timeoutOption()
{
    return {QStringLiteral("timeout"), QStringLiteral("End a check after this time."),
            QStringLiteral("SECONDS"), QStringLiteral("60")};
}

QCommandLineOption keepOption()
{
    return {QStringLiteral("keep"),
            QStringLiteral("Leave tasks that show what is wrong in this folder, by default the "
                           "one for temporary files."),
            QStringLiteral("FOLDER"), QDir::tempPath()};
}

/// The whole number an option gives, from `least` to `most`.
Result<quint32> numberOf(const QCommandLineParser &parser, const QCommandLineOption &option,
                         quint32 least, quint32 most)
{
    const QString text = parser.value(option);
    bool isNumber = false;
    const quint32 number = text.toUInt(&isNumber);
    if (isNumber && number >= least && number <= most)
        return number;
    return Problem{Problem::Reason::UnfitValue,
                   {},
                   QStringLiteral("--") + option.names().constFirst(),
                   RunnerText::tr("%1; expected a whole number from %2 to %3")
                       .arg(jsonText(text), QString::number(least), QString::number(most))};
}

} // namespace

QList<QCommandLineOption> ValidateOptions::all()
{
    return {levelOption(),   operandsOption(), onlyOption(),    listOption(),
            Options::json(), seedOption(),     timeoutOption(), keepOption()};
}

Result<ValidateOptions> ValidateOptions::read(const QCommandLineParser &parser)
{
    const auto level = numberOf(parser, levelOption(), 1, highestLevel);
    const auto seed = numberOf(parser, seedOption(), 0, std::numeric_limits<quint32>::max());
    const auto timeout = numberOf(parser, timeoutOption(), 1, longestTimeout);
    for (const auto &number : {level, seed, timeout}) {
        if (!number)
            return number.problem();
    }
    const QString folder = parser.value(keepOption());
    if (!QFileInfo(folder).isDir()) {
        const QString message =
            parser.isSet(keepOption())
                ? RunnerText::tr("--keep: %1; expected a folder").arg(jsonText(folder))
                : RunnerText::tr("TMPDIR names no folder; expected one whose name is UTF-8");
        return Problem{Problem::Reason::UnfitValue, {}, {}, message};
    }
    ValidateOptions options;
    options.keepFolder = QFileInfo(folder).absoluteFilePath();
    options.list = parser.isSet(listOption());
    options.json = parser.isSet(Options::json());
    options.level = static_cast<int>(level.value());
    options.operands = parser.isSet(operandsOption());
    options.only = parser.values(onlyOption());
    options.seed = seed.value();
    options.timeoutSeconds = static_cast<int>(timeout.value());
    return options;
}
