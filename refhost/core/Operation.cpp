#include "Operation.h"

#include <QDataStream>

Operation::Operation(QObject *parent)
    : QObject(parent)
{
}

Operation::~Operation()
{
    if (m_parentOperation)
        m_parentOperation->m_children.removeAll(this);
    for (Operation *child : qAsConst(m_children)) {
        if (child && child->m_parentOperation == this)
            child->m_parentOperation = nullptr;
    }
}

void Operation::saveOperation(QDataStream &stream) const
{
    stream << baseState;
}

void Operation::loadOperation(QDataStream &stream)
{
    stream >> baseState;
}

bool Operation::isContainer() const
{
    return false;
}

int Operation::childCount() const
{
    return m_children.size();
}

Operation *Operation::childAt(int index) const
{
    return m_children.value(index);
}

QList<Operation *> &Operation::children()
{
    return m_children;
}

Operation *Operation::parentOperation() const
{
    return m_parentOperation;
}

void Operation::setParentOperation(Operation *parent)
{
    if (m_parentOperation && m_parentOperation != parent)
        m_parentOperation->m_children.removeAll(this);
    m_parentOperation = parent;
}

void Operation::setVariableScope(VariableScope *newScope)
{
    scope = newScope;
    for (Operation *child : qAsConst(m_children)) {
        if (child)
            child->setVariableScope(newScope);
    }
}
