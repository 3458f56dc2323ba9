#include "refhost/workbench/options/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

QString chinese()
{
    return QStringLiteral("zh");
}

QString english()
{
    return QStringLiteral("en");
}

void installFile(const QString &file, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator.release());
}

} // namespace

QStringList Language::names()
{
    return {chinese(), english()};
}

QString Language::ofSystem()
{
    const QStringList wanted = QLocale::system().uiLanguages();
    return wanted.value(0).startsWith(chinese()) ? chinese() : english();
}

void Language::install(const QString &name)
{
    const QLocale locale(name == chinese() ? QLocale::Chinese : QLocale::English);
    QLocale::setDefault(locale);
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    installFile(QStringLiteral("qtbase_") + locale.name(), folder);
    installFile(QStringLiteral("opworkbench_") + name, QStringLiteral(":/translations"));
}
