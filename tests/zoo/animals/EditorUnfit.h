#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class EditorUnfitOperation : public Variant<EditorUnfitOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "COMBO")
    Q_CLASSINFO("choices_text", "a|b")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// The editor of numbers for a text.
class EditorUnfit : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new EditorUnfitOperation}; }
};
