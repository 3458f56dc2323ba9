#include "tests/golden/GoldenCases.h"
#include "tests/golden/GoldenFolder.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskPacker.h"

#include "tests/support/Records.h"

#include "Operation.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "write-golden: %s\n", qUtf8Printable(message));
    return 2;
}

/// The records that are kept in full as the steps of a task, in the order of their files.
Task taskOf(QList<GoldenRecord> records, const OperationCatalog &catalog)
{
    std::sort(records.begin(), records.end(), [](const auto &left, const auto &right) {
        return left.fileName() < right.fileName();
    });
    Task task;
    for (const GoldenRecord &record : records) {
        if (record.bytes.isEmpty())
            continue;
        task.steps.emplace_back(catalog.find(record.typeId)->prototype->clone(nullptr));
        loadRecord(*task.steps.back(), record.bytes);
    }
    return task;
}

} // namespace

/// Writes the records of the operations of PLUGIN, as they are today, to the new folder FOLDER.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 2)
        return fail("usage: write-golden PLUGIN FOLDER");
    const OperationCatalog catalog({arguments.at(0)});
    if (!catalog.failures().isEmpty())
        return fail(catalog.failures().first().toString());
    QList<GoldenRecord> records;
    for (const CatalogEntry &entry : catalog.entries())
        records += goldenCases(*entry.prototype);
    const Result<QByteArray> task = packTask(taskOf(records, catalog));
    if (!task)
        return fail(task.problem().toString());
    const auto problem = writeGoldenFolder(arguments.at(1), records, task.value());
    return problem ? fail(problem->toString()) : 0;
}
