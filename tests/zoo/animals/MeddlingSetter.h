#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

/// The operation of the plug-in below.
class MeddlingSetterOperation : public Variant<MeddlingSetterOperation, SoundBase>
{
    Q_OBJECT

    Q_CLASSINFO("prop_mode", "Mode")
    Q_CLASSINFO("editor_mode", "COMBO")
    Q_CLASSINFO("choices_mode", "plain|with a suffix")
    Q_CLASSINFO("prop_suffix", "Suffix")
    Q_CLASSINFO("editor_suffix", "VARREF")
    Q_CLASSINFO("varref_type_suffix", "int,double,string")
    Q_CLASSINFO("show_when_suffix", "mode=1")
    Q_CLASSINFO("prop_resultVar", "Save to string variable")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(int mode READ mode WRITE setMode)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    void setMode(int mode)
    {
        SoundBase::setMode(mode);
        if (mode != 1)
            setSuffix(QStringLiteral("none"));
    }
};

/// A setter that changes another property too.
class MeddlingSetter : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new MeddlingSetterOperation}; }
};
