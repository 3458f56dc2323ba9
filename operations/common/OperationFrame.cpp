#include "operations/common/OperationFrame.h"

void OperationFrame::warnNoResultVariable(const QMetaObject &operationClass)
{
    const QByteArray line = warningTag(operationClass) + " 未指定结果变量，已跳过";
    warning() << line.constData();
}
