#pragma once

#include "tests/zoo/SoundPlugin.h"

/// In every library that uses it.
template <typename T>
Q_DECL_EXPORT T zooTwice(T value)
{
    return value + value;
}

template Q_DECL_EXPORT int zooTwice(int value);

/// Lets an instantiation of a template out of the library, as ordinary builds do with those of the
/// standard library.
class WeakExport : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)
};
