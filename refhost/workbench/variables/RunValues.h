#pragma once

#include "refhost/workbench/variables/CurrentValues.h"

class RunSession;

/// The values of the variables in the run of the window.
class RunValues : public CurrentValues
{
    Q_OBJECT

public:
    /// The run has to outlive this object.
    explicit RunValues(RunSession &run, QObject *parent = nullptr);

    bool areThere() const override;
    bool mayChange() const override;
    QVariant value(const QString &variable) const override;
    QStringList written() const override;
    void set(const QString &variable, const QVariant &value) override;

private:
    RunSession &m_run;
};
