#include "refhost/runner/LanguageChoice.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/LanguageName.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

namespace {

QString englishLanguage()
{
    return QStringLiteral("en");
}

/// The languages of the messages, one of which is that of the plug-ins' sources, and those that
/// stand beside the plug-ins, sorted.
QStringList knownLanguages(const QStringList &plugins)
{
    QStringList languages{sourceLanguage(), englishLanguage()};
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

/// Whether the first of the languages in which there are messages is Chinese.
bool isChinese(const QStringList &languages)
{
    for (const QString &language : languages) {
        if (isSourceLanguage(language))
            return true;
        if (languageAndParents(language).constLast() == englishLanguage())
            return false;
    }
    return false;
}

/// By this name the translators of the messages are found again.
QString translatorName()
{
    return QStringLiteral("messages");
}

} // namespace

void installMessages(const QStringList &languages)
{
    auto *const application = QCoreApplication::instance();
    qDeleteAll(
        application->findChildren<QTranslator *>(translatorName(), Qt::FindDirectChildrenOnly));
    if (!isChinese(languages))
        return;
    // The engine's Chinese is made for a window. What oprun calls things differs, and is found
    // first, since it is installed last.
    for (const char *file : {"opworkbench_zh", "oprun_zh"}) {
        auto *const translator = new QTranslator(application);
        translator->setObjectName(translatorName());
        // Without the file the messages stay in English.
        if (translator->load(QLatin1String(file), QStringLiteral(":/messages")))
            QCoreApplication::installTranslator(translator);
    }
}

QStringList messageLanguages(const QCommandLineParser &options)
{
    const QStringList named = options.values(Options::language());
    return named.size() == 1 ? named + localeLanguages() : localeLanguages();
}

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
