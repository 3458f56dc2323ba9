#pragma once

#include <QString>

/// The text as the content of a tooltip that shows it as it is, never as markup, and wraps it. Long
/// texts are cut off.
QString shownToolTip(const QString &text);
