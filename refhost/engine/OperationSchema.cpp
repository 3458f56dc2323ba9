#include "refhost/engine/OperationSchema.h"

#include "Operation.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QMetaProperty>

#include <algorithm>

namespace {

/// The place of the class info "<key>_<property>", -1 when the class has none.
int annotationIndex(const QMetaObject &meta, const char *key, const QString &property)
{
    const QByteArray name = key + ('_' + property.toUtf8());
    return meta.indexOfClassInfo(name.constData());
}

/// The class info "<key>_<property>", empty when the class has none.
QString annotation(const QMetaObject &meta, const char *key, const QString &property)
{
    const int index = annotationIndex(meta, key, property);
    return index < 0 ? QString() : QString::fromUtf8(meta.classInfo(index).value());
}

/// The text of an annotation, or a part of it, as users are to read it. Its context is the class
/// that has the annotation.
QString translated(const QMetaObject &meta, const char *key, const QString &property,
                   const QString &text)
{
    if (text.isEmpty())
        return text;
    const int index = annotationIndex(meta, key, property);
    const QMetaObject *owner = &meta;
    while (index < owner->classInfoOffset())
        owner = owner->superClass();
    return QCoreApplication::translate(owner->className(), text.toUtf8().constData());
}

void readRestriction(const QMetaObject &meta, PropertySchema &schema)
{
    for (const char *key : {"varref_kind", "varref_type", "varname_type"}) {
        schema.restriction = annotation(meta, key, schema.name);
        if (!schema.restriction.isEmpty()) {
            schema.restrictionKey = QString::fromLatin1(key);
            return;
        }
    }
}

/// Takes "mode=1|2" apart.
void readCondition(const QMetaObject &meta, PropertySchema &schema)
{
    const QString condition = annotation(meta, "show_when", schema.name);
    const int equals = condition.indexOf(QLatin1Char('='));
    if (equals < 0)
        return;
    schema.conditionName = condition.left(equals);
    const QStringList values = condition.mid(equals + 1).split(QLatin1Char('|'));
    for (const QString &value : values)
        schema.conditionValues.append(value.toInt());
}

PropertySchema readProperty(const QMetaObject &meta, const QMetaProperty &property)
{
    PropertySchema schema;
    schema.name = QString::fromLatin1(property.name());
    schema.typeName = QString::fromLatin1(property.typeName());
    schema.label = annotation(meta, "prop", schema.name);
    schema.editor = annotation(meta, "editor", schema.name);
    schema.choices =
        annotation(meta, "choices", schema.name).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    schema.shownLabel = translated(meta, "prop", schema.name, schema.label);
    for (const QString &choice : qAsConst(schema.choices))
        schema.shownChoices.append(translated(meta, "choices", schema.name, choice));
    readRestriction(meta, schema);
    readCondition(meta, schema);
    return schema;
}

} // namespace

OperationSchema::OperationSchema(const Operation &prototype)
{
    const QMetaObject &meta = *prototype.metaObject();
    // What QObject and Operation declare is not the step's own.
    const int first = Operation::staticMetaObject.propertyCount();
    for (int i = first; i < meta.propertyCount(); ++i) {
        PropertySchema schema = readProperty(meta, meta.property(i));
        schema.defaultValue = meta.property(i).read(&prototype);
        m_properties.append(schema);
    }
}

const PropertySchema *OperationSchema::property(const QString &name) const
{
    const auto found = std::find_if(m_properties.cbegin(), m_properties.cend(),
                                    [&](const auto &schema) { return schema.name == name; });
    return found == m_properties.cend() ? nullptr : &*found;
}

QStringList OperationSchema::propertyNames() const
{
    QStringList names;
    for (const PropertySchema &schema : m_properties)
        names.append(schema.name);
    return names;
}
