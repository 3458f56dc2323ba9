#pragma once

#include <QStringList>

class Operation;
class OperationClass;

/// How many rounds it takes until each property has had each of its odd values.
int oddRounds(const OperationClass &operationClass);

/// Gives all properties the odd values of one round, from 0; those of different properties differ
/// where their types allow it.
void setOdd(Operation &step, const OperationClass &operationClass, int round);

/// Gives each property a short value that is not its default.
void setUnusual(Operation &step, const OperationClass &operationClass);

/// The properties in which the steps differ, as "text: \"a\"; expected \"b\"".
QStringList differences(const Operation &actual, const Operation &expected,
                        const OperationClass &operationClass);
