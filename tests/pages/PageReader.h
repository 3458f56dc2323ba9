#pragma once

#include "tests/pages/PageCommand.h"

#include <QString>
#include <QVector>

/// The commands of a page in Markdown, in their order. They are
/// - in blocks fenced as "console" the lines that begin with "$ ", with the lines below as output;
/// - in blocks fenced as "sh" every line;
/// - every line of an indented block. What is no command belongs into a fenced block.
/// Lines of which the one before ends in a backslash belong to that; lines with "#" are comments.
QVector<PageCommand> commandsOfPage(const QString &text);

/// The commands of a manual page: the lines of its blocks without filling (.nf).
QVector<PageCommand> commandsOfManual(const QString &text);
