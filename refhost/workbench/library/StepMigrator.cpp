#include "refhost/workbench/library/StepMigrator.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/library/PluginLibrary.h"
#include "refhost/workbench/library/StepMigration.h"

#include "Operation.h"

StepMigrator::StepMigrator(TaskDocument &document, PluginLibrary &library, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_library(library)
{
    document.setStepMigration([this](const Shared &operation) { return newer(operation); });
    library.setUsedTypes([&document] { return document.usedTypes(); });
    connect(&library, &PluginLibrary::reloaded, this, &StepMigrator::follow);
}

StepMigrator::~StepMigrator()
{
    m_document.setStepMigration({});
    m_library.setUsedTypes({});
}

/// A step is carried over from what it was when it was last edited, so that what one version of a
/// plug-in does not have is there again with the next.
StepMigrator::Shared StepMigrator::newer(const Shared &operation)
{
    const auto known = m_migrations.constFind(operation.get());
    if (known != m_migrations.constEnd())
        return known->to;
    const CatalogEntry *const entry = m_library.catalog().find(operation->typeId());
    if (!entry || entry->prototype->metaObject() == operation->metaObject())
        return operation;
    const auto origin = m_origins.constFind(operation.get());
    const Shared from = origin == m_origins.constEnd() ? operation : origin->from;
    MigratedStep step = migrateStep(*from, *entry->prototype);
    Shared to(std::move(step.operation));
    m_origins.insert(to.get(), {from, to, step.lost});
    m_migrations.insert(operation.get(), {operation, to, {}});
    return to;
}

void StepMigrator::follow()
{
    m_migrations.clear();
    m_document.migrateSteps();
    Q_EMIT migrated(lostSettings());
}

QStringList StepMigrator::lostSettings() const
{
    QStringList lines;
    const QVector<StepState> &steps = m_document.state().steps;
    for (int row = 0; row < steps.size(); ++row) {
        const QStringList lost = m_origins.value(steps.at(row).operation.get()).lost;
        if (!lost.isEmpty())
            lines.append(tr("第 %1 步：新版本没有保留 %2")
                             .arg(QString::number(row + 1), lost.join(tr("、"))));
    }
    return lines;
}
