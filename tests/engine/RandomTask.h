#pragma once

#include "refhost/engine/Task.h"

#include <QRandomGenerator>

class OperationCatalog;

/// Makes tasks of all operations of a catalogue, with variables of all types. The same seed makes
/// the same tasks.
class RandomTask
{
public:
    enum class Values {
        Any,   ///< all that a packed task holds
        OfJson ///< only what a JSON task says exactly
    };

    RandomTask(const OperationCatalog &catalog, quint32 seed, Values values);

    /// Another task.
    Task take();

private:
    int below(int bound) { return static_cast<int>(m_random.bounded(bound)); }
    QString text();
    QVariant textValue();
    double number();
    QVariant wholeNumber();
    QVariant element(int depth);
    QVariantList list(int depth);
    QVariantList table();
    QVariant value(VarType type);
    std::unique_ptr<Operation> step();

    const OperationCatalog &m_catalog;
    QRandomGenerator m_random;
    Values m_values;
};
