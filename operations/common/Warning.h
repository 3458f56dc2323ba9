#pragma once

#include <QByteArray>
#include <QDebug>

struct QMetaObject;

/// One warning line for Qt's message logger: stream the items into it, the line is written when the
/// statement ends. Items are separated by a space, a `QString` stands in double quotes, a character
/// literal (UTF-8) stands as it is.
QDebug warning();

/// How an operation signs its own lines: its class name less "Operation" in square brackets,
/// "[TextAppend]".
QByteArray warningTag(const QMetaObject &operationClass);

/// Logs that the operation knows no such mode: `what` is the operation's word for it.
void warnUnknownMode(const QMetaObject &operationClass, const char *what, int mode);
