#include "refhost/runner/rows/RowTally.h"

#include "refhost/runner/RunnerText.h"

QString RowTally::toString() const
{
    QString text = RunnerText::tr("%1 rows: %2 done, %3 failed; %4 warnings")
                       .arg(QString::number(rows), QString::number(rows - failed),
                            QString::number(failed), QString::number(warnings));
    if (failedSteps > 0)
        text += RunnerText::tr("; %1 failed steps").arg(failedSteps);
    return text;
}
