#include "refhost/validator/trials/EqualValue.h"

#include <QVariantList>

#include <algorithm>
#include <cmath>

bool isEqualValue(const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    if (left.userType() == QMetaType::Double && std::isnan(left.toDouble()))
        return std::isnan(right.toDouble());
    if (left.userType() != QMetaType::QVariantList)
        return left == right;
    const QVariantList leftList = left.toList();
    const QVariantList rightList = right.toList();
    return std::equal(leftList.begin(), leftList.end(), rightList.begin(), rightList.end(),
                      isEqualValue);
}
