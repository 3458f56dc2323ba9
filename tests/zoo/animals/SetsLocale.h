#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QLocale>

/// The operation of the plug-in below.
class SetsLocaleOperation : public Variant<SetsLocaleOperation>
{
public:
    void doOperation() const override
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        Variant::doOperation();
    }
};

/// A run sets the default locale of the process.
class SetsLocale : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new SetsLocaleOperation}; }
};
