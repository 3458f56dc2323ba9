#pragma once

#include <QString>

#include <memory>

class QCoreApplication;

// Rendering of icons, where the program is built with Qt Gui and Qt Svg.

/// Whether this build can render icons.
bool canRenderIcons();

/// An application object under which icons can be rendered, without a screen.
std::unique_ptr<QCoreApplication> makeIconApplication(int &argc, char **argv);

/// What is wrong with the icon at `path` in a square of `size` pixels, empty when it shows
/// something.
QString iconFault(const QString &path, int size);
