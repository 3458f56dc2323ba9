#include "refhost/workbench/steps/StepDrag.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

namespace {

QString mimeType()
{
    return QStringLiteral("application/x-textoper-dragged-steps");
}

} // namespace

void noteDraggedSteps(QMimeData &mime, const QVector<int> &steps)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream << QCoreApplication::applicationPid() << steps;
    mime.setData(mimeType(), data);
}

QVector<int> draggedSteps(const QMimeData &mime)
{
    QDataStream stream(mime.data(mimeType()));
    qint64 process = 0;
    QVector<int> steps;
    stream >> process;
    // Only in this program the identifiers mean anything; those of others are not even read.
    if (process == QCoreApplication::applicationPid())
        stream >> steps;
    return steps;
}
