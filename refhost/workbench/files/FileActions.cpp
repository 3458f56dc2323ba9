#include "refhost/workbench/files/FileActions.h"

#include "refhost/engine/TaskReader.h"
#include "refhost/workbench/window/Workbench.h"

#include <QMenu>
#include <QWidget>

FileActions::FileActions(Workbench &bench, QWidget *window)
    : QObject(window)
    , m_bench(bench)
    , m_window(window)
{
}

void FileActions::addTo(QMenu &menu)
{
    Q_UNUSED(menu)
    Q_UNUSED(m_window)
}

bool FileActions::mayLeave()
{
    return true;
}

bool FileActions::open(const QString &path)
{
    Result<Task> task = TaskReader(m_bench.library.catalog()).readFile(path);
    if (!task)
        return false;
    m_bench.document.replace(TaskState::fromTask(std::move(task.value())));
    return true;
}
