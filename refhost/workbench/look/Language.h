#pragma once

#include <QString>
#include <QStringList>

/// The languages in which the window speaks: "zh" and "en".
QStringList languageNames();

/// The one of them for the user's locale: "zh" where that is Chinese, otherwise "en".
QString systemLanguage();

/// Gives the application the language called `name`, with Qt's own texts where Qt has brought its
/// translations along, in place of the one before. Whether there is such a language; if not nothing
/// changes. Widgets that are there already learn of it by `QEvent::LanguageChange`.
bool installLanguage(const QString &name);
