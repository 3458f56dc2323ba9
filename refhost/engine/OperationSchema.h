#pragma once

#include "refhost/engine/PropertySchema.h"

#include <QList>

class Operation;

/// The properties of an operation in their order, read from its meta-object: what an editor shows.
class OperationSchema
{
public:
    /// Reads the meta-object of `prototype` and takes its values for the defaults.
    explicit OperationSchema(const Operation &prototype);

    const QList<PropertySchema> &properties() const { return m_properties; }

    /// The property called `name`, null when there is none. Valid as long as the schema.
    const PropertySchema *property(const QString &name) const;

    /// The names of all properties, in their order.
    QStringList propertyNames() const;

private:
    QList<PropertySchema> m_properties;
};
