#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ResultVarNoNameOperation : public Variant<ResultVarNoNameOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARREF")
    Q_CLASSINFO("varref_kind_resultVar", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// Takes its result variable for a reference.
class ResultVarNoName : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ResultVarNoNameOperation}; }
};
