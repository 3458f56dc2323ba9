#include "refhost/engine/check/Finding.h"

QString Finding::place() const
{
    if (step < 0)
        return QStringLiteral("variables.") + property;
    return QStringLiteral("steps[%1] %2 %3").arg(QString::number(step), typeId, property);
}

QString mistakeId(Mistake mistake)
{
    return mistakeIds().value(static_cast<int>(mistake));
}

QStringList mistakeIds()
{
    // In the order of the enumeration.
    return {QStringLiteral("undeclared-variable"), QStringLiteral("dotted-name"),
            QStringLiteral("path-without-list"),   QStringLiteral("unknown-path"),
            QStringLiteral("empty-path"),          QStringLiteral("reference-type"),
            QStringLiteral("not-a-number"),        QStringLiteral("empty-number"),
            QStringLiteral("number-as-text"),      QStringLiteral("typed-escape"),
            QStringLiteral("typed-pattern"),       QStringLiteral("empty-search"),
            QStringLiteral("full-width"),          QStringLiteral("special-number"),
            QStringLiteral("number-beyond-int"),   QStringLiteral("maybe-not-found"),
            QStringLiteral("lone-dollar"),         QStringLiteral("dollar-in-text"),
            QStringLiteral("missing-dollar"),      QStringLiteral("name-with-dollar"),
            QStringLiteral("undeclared-result"),   QStringLiteral("empty-result"),
            QStringLiteral("result-type"),         QStringLiteral("empty-input"),
            QStringLiteral("input-type"),          QStringLiteral("unknown-mode"),
            QStringLiteral("hidden-setting"),      QStringLiteral("reads-empty"),
            QStringLiteral("read-before-write"),   QStringLiteral("overwritten-unread"),
            QStringLiteral("input-overwritten"),   QStringLiteral("unused-variable")};
}

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return QStringLiteral("error");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Note:
        break;
    }
    return QStringLiteral("note");
}
