#pragma once

#include "Operation.h"

/// The least a host has to cope with: an operation that does nothing, or holds others.
class PlainOperation : public Operation
{
public:
    explicit PlainOperation(bool container = false)
        : m_container(container)
    {
    }

    QString root() const override { return {}; }
    QString typeId() const override { return {}; }
    QString typeName() const override { return {}; }
    QString icon() const override { return {}; }
    void doOperation() const override {}
    QString toString() const override { return {}; }
    QString description() const override { return {}; }
    Operation *clone(QObject *) const override { return nullptr; }
    bool isContainer() const override { return m_container; }

    const VariableScope *currentScope() const { return scope; }
    quint32 state() const { return baseState; }
    void setState(quint32 state) { baseState = state; }
    bool stateStandsBeforeScope() const
    {
        return reinterpret_cast<const char *>(&baseState) < reinterpret_cast<const char *>(&scope);
    }

private:
    bool m_container;
};
