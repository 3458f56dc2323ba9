#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class DoubledChoiceOperation : public Variant<DoubledChoiceOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_mode", "Mode")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "plain|plain")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(int mode READ mode WRITE setMode)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// The same choice twice.
class DoubledChoice : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new DoubledChoiceOperation}; }
};
