#pragma once

#include "refhost/engine/check/CheckRule.h"

#include <QList>
#include <QSet>
#include <QString>

/// The findings about variables that are read and written in an order that makes no sense, or not
/// at all. Those that were probably meant elsewhere, `meant`, do not count as unused.
QList<Finding> flowFindings(const TaskFacts &facts, const QSet<QString> &meant);
