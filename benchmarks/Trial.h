#pragma once

#include "benchmarks/Setup.h"

#include "VariableScope.h"

#include <QString>
#include <QVariant>

#include <memory>

class Operation;

/// One step ready to run, with the bare work and the plain copy it is compared with. Step and bare
/// work have scopes of their own with the same variables.
class Trial
{
public:
    Trial(const Operation &prototype, const Setup &setup);
    ~Trial();

    /// Runs the step through the plug-in.
    void runStep() const;

    /// Does the same without the plug-in: operands from the scope, Qt's facility, the result into
    /// the scope, under the condition that it is declared for it.
    void runBare();

    /// Copies the longest text that plays a part, unit by unit.
    void copyText() const;

    /// Readies the plain copy; after `runBare`, so that the result is among the texts.
    void chooseText();

    /// What is wrong with the result of `runStep`, compared with that of `runBare`; empty when they
    /// are the same.
    QString differenceFromBare() const;

    /// The same compared with the result known beforehand, or with the bare result where none is.
    QString differenceFromKnown();

private:
    Q_DISABLE_COPY_MOVE(Trial)

    QString difference(const QVariant &expected) const;

    Setup m_setup;
    VariableScope m_stepScope;
    VariableScope m_bareScope;
    std::unique_ptr<Operation> m_step;
    QString m_refused;
    QString m_text;
};
