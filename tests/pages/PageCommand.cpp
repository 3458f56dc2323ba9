#include "tests/pages/PageCommand.h"

#include <QRegularExpression>

QString PageCommand::plainText() const
{
    static const QRegularExpression joint("\\\\\n");
    static const QRegularExpression comment("\\s#\\s.*$");
    QString plain = text;
    plain.replace(joint, " ");
    plain.remove(comment);
    return plain.simplified();
}
