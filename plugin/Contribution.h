#pragma once

#include <QString>

class Operation;

/// One operation that the plug-in contributes to the host's catalogue.
struct Contribution
{
    Operation *(*create)(); ///< makes a new object without a parent, which the caller owns
    QString (*typeId)();    ///< the identifier the objects answer with
    int weight;             ///< place within the catalogue root, ascending
};

template <typename T>
Contribution contribution(int weight)
{
    return {[]() -> Operation * { return new T(nullptr); }, [] { return T().typeId(); }, weight};
}
