#include "refhost/workbench/look/Remembered.h"

#include "refhost/workbench/look/Appearance.h"
#include "refhost/workbench/look/Language.h"
#include "refhost/workbench/settings/Settings.h"

#include <QSettings>
#include <QStringList>

namespace {

QString appearanceKey()
{
    return QStringLiteral("look/style");
}

QString languageKey()
{
    return QStringLiteral("look/language");
}

/// The value of a key if it is one of `known`, otherwise `fallback`.
QString remembered(const QString &key, const QStringList &known, const QString &fallback)
{
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    const QString value = settings.value(key).toString();
    return known.contains(value) ? value : fallback;
}

void remember(const QString &key, const QString &value)
{
    QSettings(settingsFile(), QSettings::IniFormat).setValue(key, value);
}

} // namespace

QString rememberedAppearance()
{
    return remembered(appearanceKey(), appearanceNames(), appearanceNames().constFirst());
}

void rememberAppearance(const QString &name)
{
    remember(appearanceKey(), name);
}

QString rememberedLanguage()
{
    return remembered(languageKey(), languageNames(), systemLanguage());
}

void rememberLanguage(const QString &name)
{
    remember(languageKey(), name);
}
