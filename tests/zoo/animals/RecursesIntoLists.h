#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include "VariableScope.h"

/// The operation of the plug-in below.
class RecursesIntoListsOperation : public Variant<RecursesIntoListsOperation>
{
public:
    void doOperation() const override
    {
        if (scope && text().startsWith(QLatin1Char('$')) && depth(scope->get(text().mid(1))) < 0)
            return;
        Variant::doOperation();
    }

private:
    /// How deep the lists in a value are.
    static int depth(const QVariant &value)
    {
        int deepest = 0;
        const QVariantList list = value.toList();
        for (const QVariant &element : list)
            deepest = qMax(deepest, depth(element));
        return deepest + 1;
    }
};

/// It goes down into lists as deep as they are.
class RecursesIntoLists : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new RecursesIntoListsOperation}; }
};
