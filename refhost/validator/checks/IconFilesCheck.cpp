#include "refhost/validator/checks/IconFilesCheck.h"

#include "refhost/validator/CheckContext.h"

#include "Operation.h"

#include <QFile>

IconFilesCheck::IconFilesCheck()
    : Check({QStringLiteral("catalog.icons"), 2,
             QStringLiteral("The icon of each operation is a resource that can be read.")})
{
}

Outcome IconFilesCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        context.doing(name + QStringLiteral(": icon"));
        const QString path = prototype->icon();
        QFile file(path);
        if (!path.startsWith(QLatin1String(":/"))) {
            outcome.fail(QStringLiteral("%1: icon: \"%2\"; expected a resource, such as "
                                        "\":/images/text_append.svg\"")
                             .arg(name, path));
        } else if (!file.open(QIODevice::ReadOnly)) {
            outcome.fail(QStringLiteral("%1: icon: \"%2\" cannot be read (%3)")
                             .arg(name, path, file.errorString()));
        } else if (file.size() == 0) {
            outcome.fail(QStringLiteral("%1: icon: \"%2\" is empty").arg(name, path));
        }
    }
    return outcome;
}
