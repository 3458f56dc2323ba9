#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class SpacedChoiceOperation : public Variant<SpacedChoiceOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_mode", "Mode")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "plain | with a suffix")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(int mode READ mode WRITE setMode)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// Choices with spaces around their bar.
class SpacedChoice : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SpacedChoiceOperation}; }
};
