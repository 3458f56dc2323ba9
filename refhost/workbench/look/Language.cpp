#include "refhost/workbench/look/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

QString chinese()
{
    return QStringLiteral("zh");
}

QString english()
{
    return QStringLiteral("en");
}

/// By this name the translators of the language are found again.
QString translatorName()
{
    return QStringLiteral("language");
}

void installTranslator(const QString &file, const QString &folder)
{
    auto *const application = QCoreApplication::instance();
    auto *const translator = new QTranslator(application);
    translator->setObjectName(translatorName());
    // Without the file everything stays as it is in the sources.
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

QStringList languageNames()
{
    return {chinese(), english()};
}

QString systemLanguage()
{
    return QLocale::system().language() == QLocale::Chinese ? chinese() : english();
}

bool installLanguage(const QString &name)
{
    if (!languageNames().contains(name))
        return false;
    Q_INIT_RESOURCE(translations); // a static library does not do it by itself
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>(
        translatorName(), Qt::FindDirectChildrenOnly));
    const QString ofQt = name == chinese() ? QStringLiteral("zh_CN") : name;
    installTranslator(QStringLiteral("opworkbench_") + name, QStringLiteral(":/translations"));
    installTranslator(QStringLiteral("qtbase_") + ofQt,
                      QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    return true;
}
