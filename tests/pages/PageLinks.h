#pragma once

#include <QString>
#include <QStringList>

/// What the links and pictures of a page in Markdown name within the project, as they are written:
/// a file, a "#" with a heading, or both.
QStringList linksIn(const QString &text);

/// The headings of a page as links name them, without the "#".
QStringList headingsIn(const QString &text);
