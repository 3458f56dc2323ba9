#pragma once

#include <QString>

/// The file in which the window keeps what it remembers from one time to the next, to be opened as
/// `QSettings::IniFormat`. The user's configuration folder decides where it is.
QString settingsFile();
