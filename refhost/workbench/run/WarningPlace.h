#pragma once

#include "refhost/engine/OperandTrace.h"

#include <QString>
#include <QStringList>
#include <QVector>

class Operation;

/// The property of `step` that a line it logged is about, as far as the line and the annotations of
/// the step tell: one with the name or the value that the line cites, a choice of a number that
/// there is not, or one that the line calls by its label. Otherwise the first of `suspects`, the
/// properties in which likely mistakes were found; empty when there is no telling.
QString warningPlace(const QString &line, const Operation &step,
                     const QVector<OperandRecord> &operands, const QStringList &suspects = {});
