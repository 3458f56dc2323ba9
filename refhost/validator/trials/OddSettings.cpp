#include "refhost/validator/trials/OddSettings.h"

#include "refhost/validator/OddValues.h"
#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/ShownValue.h"

#include "Operation.h"

#include <algorithm>

int oddRounds(const OperationClass &operationClass)
{
    int rounds = 1;
    for (const QMetaProperty &property : operationClass.properties())
        rounds = std::max(rounds, oddValues(property).size());
    return rounds;
}

void setOdd(Operation &step, const OperationClass &operationClass, int round)
{
    int shift = 0;
    for (const QMetaProperty &property : operationClass.properties()) {
        const QList<QVariant> values = oddValues(property);
        if (!values.isEmpty())
            property.write(&step, values.at((round + shift++) % values.size()));
    }
}

void setUnusual(Operation &step, const OperationClass &operationClass)
{
    int number = 1;
    for (const QMetaProperty &property : operationClass.properties()) {
        const QVariant value = property.read(&step);
        if (property.userType() == QMetaType::Bool)
            property.write(&step, !value.toBool());
        else if (property.userType() == QMetaType::QString)
            property.write(&step, QStringLiteral("文本 %1").arg(++number));
        else if (property.userType() == QMetaType::Double)
            property.write(&step, value.toDouble() + ++number + 0.5);
        else if (property.userType() == QMetaType::Int)
            property.write(&step, value.toInt() + 0x01020300 + ++number);
    }
}

QStringList differences(const Operation &actual, const Operation &expected,
                        const OperationClass &operationClass)
{
    QStringList differing;
    for (const QMetaProperty &property : operationClass.properties()) {
        const QVariant found = actual.property(property.name());
        const QVariant wanted = property.read(&expected);
        if (found != wanted) {
            differing.append(QStringLiteral("%1: %2; expected %3")
                                 .arg(nameOf(property), shownValue(found), shownValue(wanted)));
        }
    }
    return differing;
}
