#pragma once

#include "refhost/engine/check/CheckRule.h"

#include <QList>
#include <QSet>
#include <QString>

/// The findings about variables that are read and written in an order that makes no sense, or not
/// at all. Of those that were probably meant elsewhere, `meant`, it cannot be told.
QList<Finding> flowFindings(const TaskFacts &facts, const QSet<QString> &meant);
