#include "refhost/engine/OperationCatalog.h"

#include "refhost/engine/EngineText.h"

#include "Operation.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

constexpr int noWeight = std::numeric_limits<int>::max();

bool comesBefore(const CatalogEntry &left, const CatalogEntry &right)
{
    return std::tie(left.rootWeight, left.rootKey, left.root, left.weight) <
           std::tie(right.rootWeight, right.rootKey, right.root, right.weight);
}

/// Whether `key` is translated to `root` in the context of the operation's class, or of one that it
/// derives from.
bool isRoot(const QString &root, const QString &key, const Operation &operation)
{
    const QByteArray text = key.toUtf8();
    const QMetaObject *type = operation.metaObject();
    for (; type && type != &Operation::staticMetaObject; type = type->superClass()) {
        if (QCoreApplication::translate(type->className(), text.constData()) == root)
            return true;
    }
    return false;
}

/// The key by which the manifest has a weight for the root, which the operation gives translated
/// and the manifest has as it stands in the sources. The root itself where there is none.
QString rootKeyOf(const QString &root, const Operation &operation, const PluginManifest &manifest)
{
    if (manifest.rootOrder.contains(root))
        return root;
    const QStringList keys = manifest.rootOrder.keys();
    const auto found = std::find_if(keys.cbegin(), keys.cend(), [&](const QString &key) {
        return isRoot(root, key, operation);
    });
    return found == keys.cend() ? root : *found;
}

QList<CatalogEntry> entriesOf(const LoadedPlugin &plugin)
{
    const PluginManifest &manifest = plugin.manifest();
    QList<CatalogEntry> entries;
    for (const auto &prototype : plugin.prototypes()) {
        CatalogEntry entry;
        entry.root = prototype->root();
        entry.rootKey = rootKeyOf(entry.root, *prototype, manifest);
        entry.rootWeight = manifest.rootOrder.value(entry.rootKey, noWeight);
        entry.typeId = prototype->typeId();
        entry.weight = manifest.typeOrder.value(entry.typeId, noWeight);
        entry.prototype = prototype.get();
        entries.append(entry);
    }
    return entries;
}

} // namespace

OperationCatalog::OperationCatalog(const QStringList &files, const QHash<QString, QString> &copies,
                                   const std::function<void(const QString &)> &begin)
{
    for (const QString &file : files) {
        if (begin)
            begin(file);
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

QString OperationCatalog::pluginFile(const QString &typeId) const
{
    const CatalogEntry *const entry = find(typeId);
    const auto found = std::find_if(m_plugins.cbegin(), m_plugins.cend(), [&](const auto &plugin) {
        const auto &all = plugin.prototypes();
        return std::any_of(all.cbegin(), all.cend(), [&](const auto &prototype) {
            return entry && prototype.get() == entry->prototype;
        });
    });
    return found == m_plugins.cend() ? QString() : found->path();
}

QStringList OperationCatalog::typeIds() const
{
    QStringList ids;
    for (const CatalogEntry &entry : m_entries)
        ids.append(entry.typeId);
    return ids;
}
