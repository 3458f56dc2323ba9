#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class ConditionOnTextOperation : public Variant<ConditionOnTextOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")
    Q_CLASSINFO("prop_suffix", "Suffix")
    Q_CLASSINFO("editor_suffix", "VARREF")
    Q_CLASSINFO("varref_type_suffix", "int,double,string")
    Q_CLASSINFO("show_when_suffix", "text=1")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
};

/// Shown depending on a property that is no mode.
class ConditionOnText : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ConditionOnTextOperation}; }
};
