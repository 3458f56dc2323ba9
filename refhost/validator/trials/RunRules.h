#pragma once

#include <QString>
#include <QStringList>

class Specimen;
struct TracedRun;

/// What about a run breaks the rules that hold for every run: nothing is thrown, one warning at
/// most for each variable that is named, and nothing changes but the result variable. `changed` are
/// the names of the variables that did. Empty when all is well.
QString brokenRule(const Specimen &specimen, const TracedRun &trace, const QString &resultVariable,
                   const QStringList &changed);
