#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

#include <QLocale>

/// The operation of the plug-in below.
class ResultByLocaleOperation : public Variant<ResultByLocaleOperation>
{
public:
    void doOperation() const override
    {
        if (scope && !resultVar().isEmpty() && scope->typeOf(resultVar()) == VarType::String)
            scope->set(resultVar(), QLocale().toString(mode()));
        else
            Variant::doOperation();
    }
};

/// Its result is a number as users write it.
class ResultByLocale : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ResultByLocaleOperation}; }
};
