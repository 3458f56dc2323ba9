#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QDir>

/// The operation of the plug-in below.
class ChangesFolderOperation : public Variant<ChangesFolderOperation>
{
public:
    void doOperation() const override
    {
        QDir::setCurrent(QDir::rootPath());
        Variant::doOperation();
    }
};

/// A run changes the working folder.
class ChangesFolder : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new ChangesFolderOperation}; }
};
