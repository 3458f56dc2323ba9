#include "refhost/validator/OddValues.h"

#include <QMetaProperty>

#include <limits>

namespace {

QList<QVariant> oddTexts()
{
    constexpr int longText = 100000;
    return {QString(),
            QStringLiteral(" "),
            QStringLiteral(" padded\t"),
            QStringLiteral("$"),
            QStringLiteral("$line.Rows"),
            QStringLiteral("007"),
            QStringLiteral("two\nlines\r\n"),
            QStringLiteral("%1 \\n <b> \"quoted\""),
            QString(QChar(0)) + QStringLiteral("nul"),
            QStringLiteral("文本 e\u0301"),
            QString::fromUcs4(U"\U0001F600"),
            QString(QChar(0xD800)),
            QString(longText, QLatin1Char('x'))};
}

} // namespace

QList<QVariant> oddValues(const QMetaProperty &property)
{
    switch (property.userType()) {
    case QMetaType::QString:
        return oddTexts();
    case QMetaType::Int:
        return {1, -1, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 0};
    case QMetaType::Double:
        return {1.5, -1e300, std::numeric_limits<double>::infinity(), 5e-324, 0.0};
    case QMetaType::Bool:
        return {true, false};
    default:
        return {};
    }
}
