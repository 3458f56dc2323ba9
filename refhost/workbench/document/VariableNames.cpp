#include "refhost/workbench/document/VariableNames.h"

#include "refhost/workbench/values/VisibleText.h"

#include <QCoreApplication>
#include <QSet>

namespace {

constexpr int nameUnits = 60;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(VariableNames)
};

QString withoutNumber(const QString &name)
{
    int size = name.size();
    while (size > 0 && name.at(size - 1).isDigit())
        --size;
    return name.left(size);
}

} // namespace

QString nameRefusal(const TaskState &state, int id, const QString &name)
{
    if (name.isEmpty())
        return Texts::tr("变量需要一个名称。");
    for (const VariableState &other : state.variables) {
        if (other.id != id && other.variable.name == name)
            return Texts::tr("已有名为“%1”的变量，请换一个名称。")
                .arg(visibleText(name, nameUnits));
    }
    return {};
}

QString freeVariableName(const TaskState &state, const QString &name)
{
    const QStringList names = state.variableNames();
    const QSet<QString> taken(names.cbegin(), names.cend());
    const QString base = withoutNumber(name);
    for (int number = 1;; ++number) {
        QString candidate = base + QString::number(number);
        if (!taken.contains(candidate))
            return candidate;
    }
}
