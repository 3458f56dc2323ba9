#pragma once

#include "refhost/engine/PluginTranslation.h"
#include "refhost/engine/Result.h"

#include <QStringList>

#include <vector>

class Console;
class QCommandLineParser;

/// The languages in which texts of `plugins` are shown, the dearest first: the one named with
/// "--lang", else what the locale asks for. A problem when there is no such language: neither
/// one of oprun's messages, which that of the sources is, too, nor one that stands beside a
/// plug-in.
Result<QStringList> chosenLanguages(const QCommandLineParser &options, const QStringList &plugins);

/// The same for results that programs read: the locale has no say in them.
Result<QStringList> languagesNamed(const QCommandLineParser &options, const QStringList &plugins);

/// Shows the messages of oprun and of the engine in the first of `languages` (in order of
/// preference) in which there are messages: "en" or "zh". In English if there is none. Texts that
/// exist already stay as they are.
void installMessages(const QStringList &languages);

/// Returns the languages of messages, in order of preference: the one named with "--lang", whether
/// or not there is such a language, then those of the locale. Of several that are named none
/// counts.
QStringList messageLanguages(const QCommandLineParser &options);

/// The translations of the plug-ins; a message for each that cannot be used.
std::vector<PluginTranslation> translate(const QStringList &plugins, const QStringList &languages,
                                         const Console &console);
