#pragma once

/// The declared type of a task variable. The numbers are fixed: they are stored in tasks, and
/// plug-ins compare against them. A value outside the list is possible (a newer host) and unknown
/// to a plug-in of this interface version.
enum class VarType : int {
    None = 0,   ///< no variable of that name is declared
    Int = 1,    ///< holds an `int`
    Double = 2, ///< holds a `double`
    String = 3, ///< holds a `QString`
    Bool = 4,   ///< holds a `bool`
    List = 5,   ///< holds a `QVariantList`
    Table = 6   ///< holds a `QVariantList` of rows, each a `QVariantList`
};
