#include "refhost/workbench/catalog/CatalogModel.h"

#include "refhost/engine/OperationSchema.h"
#include "refhost/workbench/edits/OperationMime.h"
#include "refhost/workbench/library/PluginLibrary.h"
#include "refhost/workbench/look/OperationIcon.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/VisibleText.h"

#include "Operation.h"

#include <QFileInfo>
#include <QMimeData>

namespace {

/// Between the texts a filter looks through, so that it finds nothing across two of them.
constexpr char separator = '\n';
constexpr int textLimit = 200;

QStringList labelsOf(const Operation &operation)
{
    QStringList labels;
    const OperationSchema schema(operation);
    for (const PropertySchema &property : schema.properties()) {
        if (!property.shownLabel.isEmpty())
            labels.append(property.shownLabel);
    }
    return labels;
}

} // namespace

CatalogModel::CatalogModel(const PluginLibrary &library, QObject *parent)
    : QStandardItemModel(parent)
    , m_library(library)
{
    connect(&library, &PluginLibrary::reloaded, this, &CatalogModel::rebuild);
    connect(&library, &PluginLibrary::failuresChanged, this, &CatalogModel::rebuild);
    fill();
}

QStringList CatalogModel::mimeTypes() const
{
    return {operationMimeType()};
}

QMimeData *CatalogModel::mimeData(const QModelIndexList &indexes) const
{
    for (const QModelIndex &index : indexes) {
        const QString typeId = index.data(CatalogRole::TypeId).toString();
        if (!typeId.isEmpty())
            return mimeFromOperation(typeId).release();
    }
    return nullptr;
}

void CatalogModel::rebuild()
{
    Q_EMIT aboutToRebuild();
    clear();
    fill();
    Q_EMIT rebuilt();
}

void CatalogModel::fill()
{
    setColumnCount(1);
    // A filter looks at a group when it comes, and it comes with all that is in it.
    QList<QStandardItem *> groups;
    for (const CatalogEntry &entry : m_library.catalog().entries()) {
        if (groups.isEmpty() || groups.last()->data(CatalogRole::Names).toString() != entry.root)
            groups.append(newGroup(entry.root));
        groups.last()->appendRow(newOperation(entry));
    }
    for (QStandardItem *const group : qAsConst(groups))
        appendRow(group);
    addFailures(m_library.failures());
}

QStandardItem *CatalogModel::newGroup(const QString &name) const
{
    auto *const group = new QStandardItem(visibleText(name, textLimit));
    group->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    group->setData(name, CatalogRole::Names);
    return group;
}

QStandardItem *CatalogModel::newOperation(const CatalogEntry &entry) const
{
    const Operation &operation = *entry.prototype;
    const QString name = visibleText(operation.typeName(), textLimit);
    const QStringList labels = labelsOf(operation);
    auto *const item = new QStandardItem(operationIcon(operation), name);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                   Qt::ItemNeverHasChildren);
    item->setData(entry.typeId, CatalogRole::TypeId);
    item->setData(visibleText(entry.typeId, textLimit), CatalogRole::Second);
    item->setData(QStringList{name, entry.typeId, entry.root}.join(QLatin1Char(separator)),
                  CatalogRole::Names);
    item->setData(labels.join(QLatin1Char(separator)), CatalogRole::Labels);
    QStringList lines{name, entry.typeId};
    if (!labels.isEmpty())
        lines.append(tr("设置：%1").arg(labels.join(tr("、"))));
    item->setToolTip(shownToolTip(lines.join(QLatin1Char('\n'))));
    return item;
}

void CatalogModel::addFailures(const QList<Problem> &failures)
{
    if (failures.isEmpty())
        return;
    auto *const parent = new QStandardItem(symbolIcon(QStringLiteral("warning")), tr("未能加载"));
    parent->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    for (const Problem &failure : failures) {
        const QString name = QFileInfo(failure.file).fileName();
        auto *const item = new QStandardItem(visibleText(name, textLimit));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren);
        const QString reason = failure.file + QLatin1Char('\n') + failure.message;
        item->setData(visibleText(failure.message, textLimit), CatalogRole::Second);
        item->setData(reason, CatalogRole::Reason);
        item->setData(reason, CatalogRole::Names);
        item->setToolTip(shownToolTip(reason));
        parent->appendRow(item);
    }
    appendRow(parent);
}
