#pragma once

#include <QString>

/// The text for a label or a menu item that would take "&" for the mark of a mnemonic.
QString labelText(const QString &text);
