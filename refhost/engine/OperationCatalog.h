#pragma once

#include "refhost/engine/LoadedPlugin.h"
#include "refhost/engine/Problem.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class Operation;

/// One kind of step the host offers.
struct CatalogEntry
{
    QString root;    ///< in the language of the plug-in's translation
    QString rootKey; ///< the same as the manifest has it, or like `root` where that has it not
    int rootWeight = 0;
    QString typeId;
    int weight = 0;
    const Operation *prototype = nullptr; ///< belongs to the catalogue
};

/// All the kinds of steps of all plug-ins, in the order in which a user sees them: by the weight of
/// the root, then by the weight within it; without a weight last, and otherwise as contributed.
class OperationCatalog
{
public:
    /// Loads the plug-ins in `files`. One that cannot be loaded, or that brings a type identifier
    /// that is there already, is left out and stands in `failures`. A file that is a key of
    /// `copies` is loaded from the copy that stands there, and goes by its own name all the same.
    /// `begin` is called with the name of each file before that file is loaded.
    explicit OperationCatalog(const QStringList &files, const QHash<QString, QString> &copies = {},
                              const std::function<void(const QString &)> &begin = {});

    const QList<CatalogEntry> &entries() const { return m_entries; }
    const QList<Problem> &failures() const { return m_failures; }
    const std::vector<LoadedPlugin> &plugins() const { return m_plugins; }

    /// The entry of the type identifier, null when there is none. Valid as long as the catalogue.
    const CatalogEntry *find(const QString &typeId) const;

    /// Returns the file of the plug-in that contributes the operation, empty when none does.
    QString pluginFile(const QString &typeId) const;

    /// The type identifiers, in catalogue order.
    QStringList typeIds() const;

private:
    void add(LoadedPlugin plugin);

    std::vector<LoadedPlugin> m_plugins;
    QList<CatalogEntry> m_entries;
    QList<Problem> m_failures;
};
