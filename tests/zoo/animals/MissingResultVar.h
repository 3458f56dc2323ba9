#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class MissingResultVarOperation : public Variant<MissingResultVarOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
};

/// No property for the result.
class MissingResultVar : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new MissingResultVarOperation}; }
};
