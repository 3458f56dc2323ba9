#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <QThread>

/// Takes its time when its root object is made.
class SlowLoad : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    SlowLoad() { QThread::msleep(1100); }
};
