#include "refhost/engine/ExactValue.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

bool isSameText(const QString &left, const QString &right)
{
    return left.isNull() == right.isNull() && left == right;
}

QString numberWords(double number)
{
    if (std::isnan(number)) {
        return EngineText::tr("no number (of the bits %1)")
            .arg(bitsOf(number), 16, 16, QLatin1Char('0'));
    }
    // Qt writes both zeros alike.
    const bool minusZero = number == 0 && std::signbit(number);
    return EngineText::tr("the floating-point number %1")
        .arg(minusZero ? QStringLiteral("-0")
                       : QString::number(number, 'g', QLocale::FloatingPointShortest));
}

QString textWords(const QString &text)
{
    return text.isNull() ? EngineText::tr("a null text")
                         : EngineText::tr("the text %1").arg(jsonText(text));
}

} // namespace

bool isSameValue(const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    switch (left.userType()) {
    case QMetaType::Double:
        return bitsOf(left.toDouble()) == bitsOf(right.toDouble());
    case QMetaType::QString:
        return isSameText(left.toString(), right.toString());
    case QMetaType::QVariantList: {
        const QVariantList first = left.toList();
        const QVariantList second = right.toList();
        return std::equal(first.begin(), first.end(), second.begin(), second.end(), isSameValue);
    }
    default:
        return left == right;
    }
}

QString valueWords(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return EngineText::tr("no value");
    case QMetaType::Bool:
        return value.toString();
    case QMetaType::Int:
        return EngineText::tr("the 32-bit number %1").arg(value.toString());
    case QMetaType::LongLong:
        return EngineText::tr("the 64-bit number %1").arg(value.toString());
    case QMetaType::Double:
        return numberWords(value.toDouble());
    case QMetaType::QString:
        return textWords(value.toString());
    case QMetaType::QVariantList:
        return EngineText::tr("a list of length %1").arg(value.toList().size());
    default:
        return EngineText::tr("a value of the type %1").arg(QString::fromLatin1(value.typeName()));
    }
}
