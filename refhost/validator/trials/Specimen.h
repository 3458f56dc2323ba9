#pragma once

#include "refhost/engine/OperationSchema.h"

#include "VarType.h"

#include <QString>
#include <QStringList>

#include <memory>

class CheckContext;
class Operation;
class Outcome;

/// One operation under a check, and what was found about it.
class Specimen
{
public:
    /// Both have to outlive the specimen.
    Specimen(Operation &prototype, CheckContext &context);

    Operation &prototype() const { return m_prototype; }

    /// What it is called in details: its type identifier, or its class when it has none.
    const QString &name() const { return m_name; }

    /// Its properties with their annotations.
    const OperationSchema &schema() const { return m_schema; }

    /// Whether it has the property that names the variable for its result.
    bool hasResultVariable() const;

    /// The type of that variable, as the annotations have it; a text when they say nothing.
    VarType resultType() const;

    /// Notes what is done next.
    void doing(const QString &activity);

    /// Whether `clone` gives another object of its own.
    bool canBeCloned();

    /// A new step at the values of the prototype. Only for what can be cloned.
    std::unique_ptr<Operation> newStep();

    /// Adds something that is wrong, without the name.
    void fail(const QString &detail);
    /// Adds something an author should look at, without the name.
    void warn(const QString &detail);
    /// Adds a line that changes nothing of the verdict, without the name.
    void remark(const QString &detail);

    /// Whether something was found that is wrong.
    bool hasFailed() const { return !m_failures.isEmpty(); }

    /// Puts what was found under the name, the first few of what is many.
    void addFindingsTo(Outcome &outcome) const;

private:
    QStringList firstOf(const QStringList &details) const;

    Operation &m_prototype;
    CheckContext &m_context;
    QString m_name;
    OperationSchema m_schema;
    QStringList m_failures;
    QStringList m_warnings;
    QStringList m_remarks;
};
