#pragma once

#include "Operation.h"

#include <QDataStream>
#include <QString>

#include <new>
#include <tuple>

class QObject;
struct QMetaObject;

/// What all operations do alike: running, saving, loading and copying.
///
/// An operation names this class a friend and states two things:
///
/// - `fields`, a constant tuple of pointers to its stored members in the order of their properties.
///   The record and the copy both come from it.
/// - `void run() const`, its own work. It is called with a scope and a result variable present. It
///   may throw `std::bad_alloc`, before it writes: writing the result is the last thing it does.
class OperationFrame
{
public:
    /// Runs the operation unless it has no scope (silently) or no result variable (one warning).
    /// When there is no memory for what it does, one warning tells so and nothing is written.
    template <typename T>
    static void run(const T &operation)
    {
        if (!operation.scope)
            return;
        try {
            if (operation.m_resultVar.isEmpty())
                warnNoResultVariable(T::staticMetaObject);
            else
                operation.run();
        } catch (const std::bad_alloc &) {
            warnTooLarge(T::staticMetaObject);
        }
    }

    /// Writes the base record, then every field. The record has no header of its own.
    template <typename T>
    static void save(const T &operation, QDataStream &stream)
    {
        operation.Operation::saveOperation(stream);
        std::apply([&](auto... field) { ((stream << operation.*field), ...); }, T::fields);
    }

    /// Reads what `save` wrote. The stream's status is left to the caller to look at.
    template <typename T>
    static void load(T &operation, QDataStream &stream)
    {
        operation.Operation::loadOperation(stream);
        std::apply([&](auto... field) { ((stream >> operation.*field), ...); }, T::fields);
    }

    /// A new operation with the same fields and the same host state, but no scope. It belongs to
    /// `parent`, or to the caller when there is none.
    template <typename T>
    static T *clone(const T &operation, QObject *parent)
    {
        auto *copy = new T(parent);
        std::apply([&](auto... field) { ((copy->*field = operation.*field), ...); }, T::fields);
        copy->baseState = operation.baseState;
        return copy;
    }

private:
    static void warnNoResultVariable(const QMetaObject &operationClass);
    static void warnTooLarge(const QMetaObject &operationClass) noexcept;
};
