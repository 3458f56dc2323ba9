#pragma once

#include "tests/zoo/SoundPlugin.h"
#include "tests/zoo/Variant.h"

#include <QHash>

/// The operation of the plug-in below.
class CachesByLengthOperation : public Variant<CachesByLengthOperation>
{
protected:
    QString valueOf(const QString &operand) const override
    {
        static QHash<int, QString> cache;
        const QString text = Variant::valueOf(operand);
        if (!cache.contains(text.size()))
            cache.insert(text.size(), text);
        return cache.value(text.size());
    }
};

/// Results are kept by the length of the text and given again for any text of that length.
class CachesByLength : public SoundPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override { return {new CachesByLengthOperation}; }
};
