#pragma once

#include "tests/zoo/SoundOperation.h"

/// The base of an operation that is sound but for what its class `Animal` says otherwise. With
/// `SoundBase` for `Base` the animal states its annotations and properties itself.
template <typename Animal, typename Base = SoundOperation>
class Variant : public Base
{
public:
    Operation *clone(QObject *parent) const override
    {
        auto *copy = new Animal;
        static_cast<Variant *>(copy)->copyFrom(*this);
        copy->setParent(parent);
        return copy;
    }
};
