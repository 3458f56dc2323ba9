#pragma once

#include "tests/zoo/SoundBase.h"

/// A well-behaved operation: stores a text, with a suffix when asked to.
class SoundOperation : public SoundBase
{
    Q_OBJECT

    Q_CLASSINFO("prop_text", "Text")
    Q_CLASSINFO("editor_text", "VARREF")
    Q_CLASSINFO("varref_kind_text", "string")
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

    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(int mode READ mode WRITE setMode)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    Operation *clone(QObject *parent) const override
    {
        auto *copy = new SoundOperation;
        copy->copyFrom(*this);
        copy->setParent(parent);
        return copy;
    }
};
