#include "refhost/engine/OperationCatalog.h"

#include "refhost/engine/EngineText.h"

#include "Operation.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

constexpr int noWeight = std::numeric_limits<int>::max();

bool comesBefore(const CatalogEntry &left, const CatalogEntry &right)
{
    return std::tie(left.rootWeight, left.root, left.weight) <
           std::tie(right.rootWeight, right.root, right.weight);
}

QList<CatalogEntry> entriesOf(const LoadedPlugin &plugin)
{
    const PluginManifest &manifest = plugin.manifest();
    QList<CatalogEntry> entries;
    for (const auto &prototype : plugin.prototypes()) {
        CatalogEntry entry;
        entry.root = prototype->root();
        // The manifest has the untranslated text; the reference host translates none of a plug-in.
        entry.rootWeight = manifest.rootOrder.value(entry.root, noWeight);
        entry.typeId = prototype->typeId();
        entry.weight = manifest.typeOrder.value(entry.typeId, noWeight);
        entry.prototype = prototype.get();
        entries.append(entry);
    }
    return entries;
}

} // namespace

OperationCatalog::OperationCatalog(const QStringList &files, const QHash<QString, QString> &copies)
{
    for (const QString &file : files) {
        Result<LoadedPlugin> plugin = LoadedPlugin::load(copies.value(file, file), file);
        if (plugin)
            add(std::move(plugin.value()));
        else
            m_failures.append(plugin.problem());
    }
    std::stable_sort(m_entries.begin(), m_entries.end(), comesBefore);
}

void OperationCatalog::add(LoadedPlugin plugin)
{
    const QList<CatalogEntry> entries = entriesOf(plugin);
    QStringList taken = typeIds();
    for (const CatalogEntry &entry : entries) {
        if (taken.contains(entry.typeId)) {
            m_failures.append(
                {Problem::Reason::PluginNotLoaded,
                 plugin.path(),
                 {},
                 EngineText::tr("contributes \"%1\", which is there already").arg(entry.typeId)});
            return;
        }
        taken.append(entry.typeId);
    }
    m_entries.append(entries);
    m_plugins.push_back(std::move(plugin));
}

const CatalogEntry *OperationCatalog::find(const QString &typeId) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&](const auto &entry) { return entry.typeId == typeId; });
    return found == m_entries.cend() ? nullptr : &*found;
}

QStringList OperationCatalog::typeIds() const
{
    QStringList ids;
    for (const CatalogEntry &entry : m_entries)
        ids.append(entry.typeId);
    return ids;
}
