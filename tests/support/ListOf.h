#pragma once

#include <QVariantList>

#include <initializer_list>

/// A list of these elements. `QVariantList{list}` will not do: compilers disagree on whether that
/// is a copy of the list or a list that holds it.
inline QVariantList listOf(std::initializer_list<QVariant> elements)
{
    return QVariantList(elements);
}
