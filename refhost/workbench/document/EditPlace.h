#pragma once

#include <QMetaType>
#include <QString>

/// Where in a task something is: a step, perhaps one of its properties, or a variable. Identifiers
/// are those of `TaskState`; 0 stands for none.
struct EditPlace
{
    int step = 0;
    QString property; ///< of the step, may be empty
    int variable = 0;
};

bool operator==(const EditPlace &left, const EditPlace &right);
bool operator!=(const EditPlace &left, const EditPlace &right);

Q_DECLARE_METATYPE(EditPlace)
