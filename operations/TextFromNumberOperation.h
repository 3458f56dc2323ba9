#pragma once

#include "operations/common/OperationFrame.h"

#include "Operation.h"

#include <tuple>

/// Formats a number with a fixed number of decimal places, if asked for with the thousands
/// separators of the default locale.
class TextFromNumberOperation : public Operation
{
    Q_OBJECT

    Q_CLASSINFO("prop_value", "原数值")
    Q_CLASSINFO("editor_value", "NUMVAR:SCALAR")
    Q_CLASSINFO("prop_decimals", "小数位数")
    Q_CLASSINFO("editor_decimals", "NUMVAR:INT")
    Q_CLASSINFO("prop_useGrouping", "使用千分位符")
    Q_CLASSINFO("prop_resultVar", "新文本保存到字符串变量")
    Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
    Q_CLASSINFO("varname_type_resultVar", "string")

    Q_PROPERTY(QString value READ value WRITE setValue)
    Q_PROPERTY(QString decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(bool useGrouping READ useGrouping WRITE setUseGrouping)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    explicit TextFromNumberOperation(QObject *parent = nullptr)
        : Operation(parent)
    {
    }

    /// Numeric operand: the number to format.
    QString value() const { return m_value; }
    void setValue(const QString &operand) { m_value = operand; }

    /// Numeric operand: how many decimal places; none when it is negative or not a number.
    QString decimals() const { return m_decimals; }
    void setDecimals(const QString &operand) { m_decimals = operand; }

    /// Whether to write the separators and the decimal point of the default locale.
    bool useGrouping() const { return m_useGrouping; }
    void setUseGrouping(bool on) { m_useGrouping = on; }

    /// The string variable that receives the formatted number.
    QString resultVar() const { return m_resultVar; }
    void setResultVar(const QString &name) { m_resultVar = name; }

    QString root() const override;
    QString typeId() const override;
    QString typeName() const override;
    QString icon() const override;
    QString toString() const override;
    QString description() const override;

    void doOperation() const override { OperationFrame::run(*this); }
    void saveOperation(QDataStream &stream) const override { OperationFrame::save(*this, stream); }
    void loadOperation(QDataStream &stream) override { OperationFrame::load(*this, stream); }
    Operation *clone(QObject *parent) const override
    {
        return OperationFrame::clone(*this, parent);
    }

private:
    friend class OperationFrame;

    void run() const;

    QString m_value;
    QString m_decimals;
    bool m_useGrouping = false;
    QString m_resultVar;

    /// What a record holds, in the order of the properties.
    static constexpr auto fields = std::make_tuple(
        &TextFromNumberOperation::m_value, &TextFromNumberOperation::m_decimals,
        &TextFromNumberOperation::m_useGrouping, &TextFromNumberOperation::m_resultVar);
};
