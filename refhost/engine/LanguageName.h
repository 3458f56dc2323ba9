#pragma once

#include <QString>
#include <QStringList>

// The languages of plug-ins, by their names in locales: "en", "en_US", "zh".

/// The language in which plug-ins of this host are written: "zh".
QString sourceLanguage();

/// Whether `language` is that language, of whatever country: "zh" or "zh_TW".
bool isSourceLanguage(const QString &language);

/// Whether that can be the name of a language, with a "-" or a "_" between its parts.
bool isLanguageName(const QString &name);

/// The language and what it is a kind of, the nearest first: "en_US" and "en" for "en-US".
QStringList languageAndParents(const QString &language);

/// The languages that the user's locale asks for, the dearest first; none where that is "C", or one
/// that Qt does not know.
QStringList localeLanguages();
