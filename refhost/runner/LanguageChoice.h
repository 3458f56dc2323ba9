#pragma once

#include "refhost/engine/PluginTranslation.h"
#include "refhost/engine/Result.h"

#include <QStringList>

#include <vector>

class Console;
class QCommandLineParser;

/// The languages in which texts of `plugins` are shown, the dearest first: the one named with
/// "--lang", else what the locale asks for. A problem when there is no such language: neither that
/// of the sources nor one that stands beside a plug-in.
Result<QStringList> chosenLanguages(const QCommandLineParser &options, const QStringList &plugins);

/// The same for results that programs read: the locale has no say in them.
Result<QStringList> languagesNamed(const QCommandLineParser &options, const QStringList &plugins);

/// The translations of the plug-ins; a message for each that cannot be used.
std::vector<PluginTranslation> translate(const QStringList &plugins, const QStringList &languages,
                                         const Console &console);
