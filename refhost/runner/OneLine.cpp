#include "refhost/runner/OneLine.h"

namespace {

QString escaped(QChar control)
{
    switch (control.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(control.unicode(), 4, 16, QLatin1Char('0'));
    }
}

bool breaksTheLine(QChar character)
{
    return character.category() == QChar::Other_Control ||
           character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

} // namespace

QString oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        if (breaksTheLine(character))
            line += escaped(character);
        else
            line += character;
    }
    return line;
}

QString stepNumber(int index)
{
    return QStringLiteral("steps[%1]  ").arg(index);
}
