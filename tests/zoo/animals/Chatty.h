#pragma once

#include "tests/zoo/SoundPlugin.h"

#include <cstdio>

/// Sound, but prints thousands of lines, some of them like a report of its own.
class Chatty : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    Chatty()
    {
        for (int line = 0; line < 5000; ++line) {
            std::fputs("{\"result\": \"failed\", \"details\": []}\n", stdout);
            std::fputs("oprun: nothing of the kind\n", stderr);
        }
    }
};
