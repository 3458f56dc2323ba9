#include "refhost/runner/LanguageChoice.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/LanguageName.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

/// The language of the sources, and those that stand beside the plug-ins, sorted.
QStringList knownLanguages(const QStringList &plugins)
{
    QStringList languages{sourceLanguage()};
    for (const QString &plugin : plugins)
        languages.append(PluginTranslation::languagesOf(plugin));
    languages.removeDuplicates();
    languages.sort();
    return languages;
}

bool isKnown(const QString &language, const QStringList &known)
{
    const QStringList names = languageAndParents(language);
    return isLanguageName(language) &&
           std::any_of(names.cbegin(), names.cend(),
                       [&](const QString &name) { return known.contains(name); });
}

} // namespace

Result<QStringList> chosenLanguages(const QCommandLineParser &options, const QStringList &plugins)
{
    return options.isSet(Options::language()) ? languagesNamed(options, plugins)
                                              : localeLanguages();
}

Result<QStringList> languagesNamed(const QCommandLineParser &options, const QStringList &plugins)
{
    if (!options.isSet(Options::language()))
        return QStringList();
    const QString language = options.value(Options::language());
    const QStringList known = knownLanguages(plugins);
    if (isKnown(language, known))
        return QStringList(language);
    return Problem{
        Problem::Reason::UnfitValue,
        {},
        {},
        withSuggestion(
            RunnerText::tr("no language %1; expected %2").arg(jsonText(language), listText(known)),
            nearestName(language, known))};
}

std::vector<PluginTranslation> translate(const QStringList &plugins, const QStringList &languages,
                                         const Console &console)
{
    std::vector<PluginTranslation> translations;
    for (const QString &plugin : plugins) {
        translations.emplace_back(plugin, languages);
        if (const auto &problem = translations.back().problem())
            console.complain(problem->toString());
    }
    return translations;
}
