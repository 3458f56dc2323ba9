#pragma once

#include "tests/mutation/EqualMutants.h"
#include "tests/mutation/MutantResult.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a run found, in numbers, as text and as JSON.
class MutationReport
{
public:
    /// Marks the survivors that `equal` knows. `stale` are its entries that fit nothing; those
    /// whose mutant was noticed are added.
    MutationReport(const QVector<MutantResult> &results, const EqualMutants &equal,
                   const QStringList &stale);

    /// The share of the mutants that was noticed, in percent, of those that could be built.
    double share() const;

    /// The share of those that are not known to be equal.
    double shareWithoutEqual() const;

    /// Whether the share is high enough and the list of equal mutants fits.
    bool isGood() const;

    QString toText() const;
    QByteArray toJson() const;

private:
    int count(MutantResult::Outcome outcome) const;
    int noticed() const;
    int equalCount() const;
    QString numbers() const;
    QString section(const QString &title, const QStringList &items) const;

    QVector<MutantResult> m_results;
    QStringList m_stale;
};
