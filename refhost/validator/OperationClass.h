#pragma once

#include <QList>
#include <QMetaProperty>
#include <QString>
#include <QStringList>

#include <optional>

class Operation;

/// One entry of class info, taken apart.
struct Annotation
{
    QString name;     ///< as it stands, for instance "editor_text"
    QString key;      ///< "editor"; empty when the name begins with no known key
    QString property; ///< "text"
    QString value;
};

/// What the meta-object of an operation declares beyond `Operation`, as it stands: nothing is taken
/// for granted.
class OperationClass
{
public:
    explicit OperationClass(const Operation &operation);

    /// The keys of class info, in the order in which those of a property stand.
    static QStringList keys();

    /// The properties in their order.
    const QList<QMetaProperty> &properties() const { return m_properties; }

    /// The class info in its order.
    const QList<Annotation> &annotations() const { return m_annotations; }

    /// Whether there is a property of that name.
    bool hasProperty(const QString &property) const;

    /// The value of the class info "<key>_<property>", nothing when there is none.
    std::optional<QString> value(const QString &key, const QString &property) const;

    /// The editor word of the property, empty when there is none.
    QString editor(const QMetaProperty &property) const;

    /// The editors that a property of the type can have; empty for a type that decides by itself.
    static QStringList editorsFor(int type);

    /// Whether the property has an editor word that no type has, which one check alone has to tell
    /// of.
    bool hasUnknownEditor(const QMetaProperty &property) const;

    /// The labels of the property's choice list, empty when it has none.
    QStringList choices(const QString &property) const;

private:
    QList<QMetaProperty> m_properties;
    QList<Annotation> m_annotations;
};

/// The name of the property as a text.
QString nameOf(const QMetaProperty &property);
