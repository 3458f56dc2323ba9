#include "refhost/validator/checks/IconPicturesCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/IconPicture.h"

#include "Operation.h"

#include <QCoreApplication>
#include <QFile>

IconPicturesCheck::IconPicturesCheck()
    : Check({QStringLiteral("catalog.iconPictures"), 2,
             QStringLiteral("The icons show something at 16, 24, 48 and 200 pixels.")})
{
}

std::unique_ptr<QCoreApplication> IconPicturesCheck::makeApplication(int &argc, char **argv) const
{
    return makeIconApplication(argc, argv);
}

Outcome IconPicturesCheck::run(CheckContext &context) const
{
    if (!canRenderIcons()) {
        return {Verdict::Skipped, QStringLiteral("this program is built without Qt Gui or Qt Svg")};
    }
    Outcome outcome;
    bool isAnyThere = false;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        context.doing(name + QStringLiteral(": icon"));
        const QString path = prototype->icon();
        // Another check tells of icons that are not there.
        if (!QFile::exists(path))
            continue;
        isAnyThere = true;
        for (const int size : {16, 24, 48, 200}) {
            context.doing(QStringLiteral("%1: rendering \"%2\" at %3 pixels")
                              .arg(name, path, QString::number(size)));
            const QString fault = iconFault(path, size);
            if (!fault.isEmpty())
                outcome.fail(QStringLiteral("%1: icon: \"%2\" %3").arg(name, path, fault));
        }
    }
    return isAnyThere ? outcome : Outcome(Verdict::Skipped, QStringLiteral("there are no icons"));
}
