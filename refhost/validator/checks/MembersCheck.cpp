#include "refhost/validator/checks/MembersCheck.h"

#include "refhost/validator/CheckContext.h"

#include "Operation.h"

#include <QMetaEnum>
#include <QMetaMethod>

namespace {

QString kindOf(const QMetaMethod &method)
{
    switch (method.methodType()) {
    case QMetaMethod::Signal:
        return QStringLiteral("signal");
    case QMetaMethod::Slot:
        return QStringLiteral("slot");
    case QMetaMethod::Constructor:
        return QStringLiteral("invokable constructor");
    case QMetaMethod::Method:
        break;
    }
    return QStringLiteral("invokable function");
}

QString described(const QMetaMethod &method)
{
    return QStringLiteral("%1 %2").arg(kindOf(method),
                                       QString::fromLatin1(method.methodSignature()));
}

/// The members that a step has no use for.
QStringList surplusMembers(const QMetaObject &meta)
{
    const QMetaObject &base = Operation::staticMetaObject;
    QStringList members;
    for (int i = base.methodCount(); i < meta.methodCount(); ++i)
        members.append(described(meta.method(i)));
    for (int i = base.enumeratorCount(); i < meta.enumeratorCount(); ++i)
        members.append(QStringLiteral("enumerator ") +
                       QString::fromLatin1(meta.enumerator(i).name()));
    for (int i = 0; i < meta.constructorCount(); ++i)
        members.append(described(meta.constructor(i)));
    return members;
}

} // namespace

MembersCheck::MembersCheck()
    : Check({QStringLiteral("schema.members"), 3,
             QStringLiteral("The class has a meta-object of its own, with properties alone.")})
{
}

Outcome MembersCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const QMetaObject &meta = *prototype->metaObject();
        if (&meta == &Operation::staticMetaObject || !meta.inherits(&Operation::staticMetaObject)) {
            outcome.fail(name + QStringLiteral(": its meta-object is %1; expected that of a "
                                               "subclass of Operation, by Q_OBJECT")
                                    .arg(QString::fromLatin1(meta.className())));
            continue;
        }
        const QStringList members = surplusMembers(meta);
        for (const QString &member : members)
            outcome.fail(QStringLiteral("%1: %2; expected none").arg(name, member));
    }
    return outcome;
}
