#pragma once

#include <QString>
#include <QStringList>

/// Returns the short texts that stand in the file, as 8-bit or 16-bit characters: what a library
/// may use as the name of a variable. Texts that a program puts together while it runs are not
/// among them.
QStringList namesInFile(const QString &path);
