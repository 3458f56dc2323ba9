#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class MissingEditorOperation : public Variant<MissingEditorOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// A text without an editor.
class MissingEditor : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new MissingEditorOperation}; }
};
