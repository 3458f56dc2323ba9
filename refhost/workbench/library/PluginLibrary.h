#pragma once

#include "refhost/engine/OperationCatalog.h"

#include <QObject>
#include <QStringList>

#include <memory>

/// The plug-ins of the window and the catalogue they make up.
class PluginLibrary : public QObject
{
    Q_OBJECT

public:
    /// Loads the plug-ins in `files`.
    explicit PluginLibrary(const QStringList &files, QObject *parent = nullptr);

    /// The catalogue of the plug-ins as they are loaded now; another one after `reloaded`.
    const OperationCatalog &catalog() const { return *m_catalog; }

Q_SIGNALS:
    /// The catalogue is another one.
    void reloaded();

private:
    std::unique_ptr<OperationCatalog> m_catalog;
};
