#include "refhost/runner/OptionMisuse.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/Problem.h"
#include "refhost/engine/ProgramArguments.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QString dashes()
{
    return QStringLiteral("--");
}

QString longName(const QCommandLineOption &option)
{
    return option.names().constLast();
}

/// Returns a message of Qt, a sentence with a full stop, in the form of our own.
QString asPartOfSentence(const QString &sentence)
{
    const QString rest = sentence.mid(1);
    return sentence.left(1).toLower() + (rest.endsWith(QLatin1Char('.')) ? rest.chopped(1) : rest);
}

QString unknownOption(const QString &given, const QList<QCommandLineOption> &known)
{
    const QString message = RunnerText::tr("unknown option %1").arg(jsonText(given));
    if (QFileInfo::exists(given)) {
        return RunnerText::tr("%1; for the file of that name write %2")
            .arg(message, jsonText(QString(QStringLiteral("./") + given)));
    }
    QStringList names;
    for (const QCommandLineOption &option : known)
        names.append(longName(option));
    QString bare = given;
    while (bare.startsWith(QLatin1Char('-')))
        bare.remove(0, 1);
    const QString near = nearestName(bare, names);
    // Before its command an option is unknown, too, and its name is right.
    const bool isOther = !near.isEmpty() && given != dashes() + near;
    return withSuggestion(message, isOther ? dashes() + near : QString());
}

QString repeatedOption(const QCommandLineParser &parser, const QList<QCommandLineOption> &known)
{
    for (const QCommandLineOption &option : known) {
        QStringList values;
        if (!option.valueName().isEmpty() && !Options::isRepeatable(option))
            values = parser.values(option);
        if (values.size() < 2)
            continue;
        for (QString &value : values)
            value = jsonText(value);
        return RunnerText::tr("%1 is given %2 times, with %3; expected one value")
            .arg(dashes() + longName(option), QString::number(values.size()), listText(values));
    }
    return {};
}

} // namespace

QString optionMisuse(const QCommandLineParser &parser, const QList<QCommandLineOption> &known,
                     const QStringList &arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        return unknownOption(argumentWithOption(unknown.constFirst(), arguments), known);
    if (!parser.errorText().isEmpty())
        return asPartOfSentence(parser.errorText());
    if (parser.values(Options::plugin()).contains(QString())) {
        return dashes() + longName(Options::plugin()) + QStringLiteral(": ") +
               emptyFileName(Problem::Reason::PluginNotLoaded).message;
    }
    return repeatedOption(parser, known);
}
