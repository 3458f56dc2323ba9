#include "tests/mutation/Mutation.h"

QString mutated(const QString &source, const Mutation &mutation)
{
    QString text = source;
    return text.replace(mutation.offset, mutation.original.size(), mutation.replacement);
}

QString describe(const Mutation &mutation)
{
    return QStringLiteral("%1:%2:%3: %4\n    - %5\n    + %6\n")
        .arg(mutation.file, QString::number(mutation.line), QString::number(mutation.column),
             mutation.what, mutation.before, mutation.after);
}
