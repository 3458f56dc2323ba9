#include "refhost/workbench/edits/OperationMime.h"

#include <QMimeData>

QString operationMimeType()
{
    return QStringLiteral("application/x-textoper-operation");
}

std::unique_ptr<QMimeData> mimeFromOperation(const QString &typeId)
{
    auto mime = std::make_unique<QMimeData>();
    mime->setData(operationMimeType(), typeId.toUtf8());
    return mime;
}

QString operationFromMime(const QMimeData &mime)
{
    return QString::fromUtf8(mime.data(operationMimeType()));
}
