#pragma once

#include <QString>

// What the user has chosen for the windows to come, in the settings.

/// The look, "light" when none has been chosen that there is.
QString rememberedAppearance();
void rememberAppearance(const QString &name);

/// The language, that of the system when none has been chosen.
QString rememberedLanguage();
void rememberLanguage(const QString &name);
