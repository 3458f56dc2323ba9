#pragma once

#include <QString>
#include <QStringList>

/// The language of the window's texts. The texts in the sources are Chinese.
namespace Language {

/// The languages there are, as the command line names them.
QStringList names();

/// The one that suits the locale of the system.
QString ofSystem();

/// Lets the application, which has to be there, speak that language, Qt's own dialogs included.
void install(const QString &name);

} // namespace Language
