#include "refhost/validator/OperationClass.h"

#include "Operation.h"

#include <QMetaClassInfo>

#include <algorithm>

namespace {

Annotation takeApart(const QMetaClassInfo &info)
{
    Annotation annotation;
    annotation.name = QString::fromUtf8(info.name());
    annotation.value = QString::fromUtf8(info.value());
    const QStringList keys = OperationClass::keys();
    for (const QString &key : keys) {
        if (annotation.name.startsWith(key + QLatin1Char('_'))) {
            annotation.key = key;
            annotation.property = annotation.name.mid(key.size() + 1);
        }
    }
    return annotation;
}

} // namespace

OperationClass::OperationClass(const Operation &operation)
{
    const QMetaObject &base = Operation::staticMetaObject;
    const QMetaObject &meta = *operation.metaObject();
    for (int i = base.propertyCount(); i < meta.propertyCount(); ++i)
        m_properties.append(meta.property(i));
    for (int i = base.classInfoCount(); i < meta.classInfoCount(); ++i)
        m_annotations.append(takeApart(meta.classInfo(i)));
}

QStringList OperationClass::keys()
{
    return {QStringLiteral("prop"),         QStringLiteral("editor"),
            QStringLiteral("varref_kind"),  QStringLiteral("varref_type"),
            QStringLiteral("varname_type"), QStringLiteral("choices"),
            QStringLiteral("show_when")};
}

bool OperationClass::hasProperty(const QString &property) const
{
    return std::any_of(m_properties.begin(), m_properties.end(),
                       [&](const QMetaProperty &one) { return nameOf(one) == property; });
}

std::optional<QString> OperationClass::value(const QString &key, const QString &property) const
{
    for (const Annotation &annotation : m_annotations) {
        if (annotation.key == key && annotation.property == property)
            return annotation.value;
    }
    return std::nullopt;
}

QString OperationClass::editor(const QMetaProperty &property) const
{
    return value(QStringLiteral("editor"), nameOf(property)).value_or(QString());
}

QStringList OperationClass::editorsFor(int type)
{
    switch (type) {
    case QMetaType::QString:
        return {QStringLiteral("VARREF"),        QStringLiteral("NUMVAR:INT"),
                QStringLiteral("NUMVAR:SCALAR"), QStringLiteral("VARNAME:STRING"),
                QStringLiteral("VARNAME:INT"),   QStringLiteral("VARNAME:LIST"),
                QStringLiteral("VARNAME:SCALAR")};
    case QMetaType::Int:
        return {QStringLiteral("COMBO")};
    default:
        return {};
    }
}

bool OperationClass::hasUnknownEditor(const QMetaProperty &property) const
{
    const auto word = value(QStringLiteral("editor"), nameOf(property));
    return word && !editorsFor(QMetaType::QString).contains(*word) &&
           !editorsFor(QMetaType::Int).contains(*word);
}

QStringList OperationClass::choices(const QString &property) const
{
    const auto labels = value(QStringLiteral("choices"), property);
    return labels ? labels->split(QLatin1Char('|')) : QStringList();
}

QString nameOf(const QMetaProperty &property)
{
    return QString::fromLatin1(property.name());
}
