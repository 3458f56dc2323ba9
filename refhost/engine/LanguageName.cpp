#include "refhost/engine/LanguageName.h"

#include <QLocale>
#include <QRegularExpression>

QString sourceLanguage()
{
    return QStringLiteral("zh");
}

bool isSourceLanguage(const QString &language)
{
    return languageAndParents(language).constLast() == sourceLanguage();
}

bool isLanguageName(const QString &name)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[a-z]{2,3}([_-][A-Za-z0-9]{2,8})*")));
    return form.match(name).hasMatch();
}

QStringList languageAndParents(const QString &language)
{
    QString name = language;
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    QStringList names{name};
    for (int end = name.lastIndexOf(QLatin1Char('_')); end > 0;
         end = name.lastIndexOf(QLatin1Char('_'), end - 1))
        names.append(name.left(end));
    return names;
}

QStringList localeLanguages()
{
    // Qt would still follow LANGUAGE there, which other programs do not.
    const QLocale locale = QLocale::system();
    return locale.name() == QLatin1String("C") ? QStringList() : locale.uiLanguages();
}
