#include "refhost/workbench/variables/CurrentValues.h"

CurrentValues::CurrentValues(QObject *parent)
    : QObject(parent)
{
}
