#include "operations/common/OperationFrame.h"

#include "operations/common/Warning.h"

void OperationFrame::warnNoResultVariable(const QMetaObject &operationClass)
{
    const QByteArray line = warningTag(operationClass) + " 未指定结果变量，已跳过";
    warn(line.constData());
}

void OperationFrame::warnTooLarge(const QMetaObject &operationClass) noexcept
{
    try {
        const QByteArray line = warningTag(operationClass) + " 结果过大，已跳过";
        warn(line.constData());
    } catch (...) {
        // Not even the memory for a line is left; the host goes on all the same.
    }
}
