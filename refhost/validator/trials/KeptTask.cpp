#include "refhost/validator/trials/KeptTask.h"

#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskWriter.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/ParentProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString pathOf(const CheckContext &context, const QString &checkId, const QString &typeId)
{
    QString name = QStringLiteral("%1-%2-%3-%4.json")
                       .arg(checkId, QFileInfo(context.file()).completeBaseName(),
                            QString::number(context.seed()), typeId);
    // A type identifier may hold anything.
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9._-]")), QStringLiteral("_"));
    return QDir(context.keepFolder()).filePath(name);
}

/// The text as one word of a command line.
QString quoted(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9._/+-]+$"));
    QString inner = text;
    inner.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return plain.match(text).hasMatch() ? text : QStringLiteral("'%1'").arg(inner);
}

} // namespace

KeptTask::KeptTask(const CheckContext &context, const QString &checkId, const QString &typeId)
    : m_file(pathOf(context, checkId, typeId))
    , m_commandLine(QStringLiteral("oprun run %1 --plugin %2")
                        .arg(quoted(m_file.fileName()), quoted(context.file())))
{
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        setFileToRemove(QFile::encodeName(m_file.fileName()));
}

KeptTask::~KeptTask()
{
    setFileToRemove({});
}

QString KeptTask::problem() const
{
    return m_file.isOpen() ? QString()
                           : QStringLiteral("%1: %2").arg(m_file.fileName(), m_file.errorString());
}

void KeptTask::write(const Task &task)
{
    // Without a catalogue, which the plug-in may not be fit for, all properties are written.
    static const OperationCatalog noCatalog{QStringList()};
    if (!m_file.isOpen())
        return;
    m_file.seek(0);
    m_file.resize(0);
    m_file.write(indentedJson(taskToJson(task, noCatalog)));
}

void KeptTask::discard()
{
    m_file.remove();
}
