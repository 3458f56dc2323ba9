#include "refhost/workbench/document/EditPlace.h"

#include <tuple>

bool operator==(const EditPlace &left, const EditPlace &right)
{
    return std::tie(left.step, left.property, left.variable) ==
           std::tie(right.step, right.property, right.variable);
}

bool operator!=(const EditPlace &left, const EditPlace &right)
{
    return !(left == right);
}
