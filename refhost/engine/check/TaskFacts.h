#pragma once

#include "refhost/engine/FactBook.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/OperandText.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/Task.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

class OperationCatalog;

/// Whether values of this type have elements, and so members such as "Count".
bool holdsElements(VarType type);

/// Whether a list of type words, such as "int,double", names `type`. The word "scalar" stands for
/// the numbers; of a word that is not known nothing can be said, so it names every type.
bool namesType(const QString &words, VarType type);

/// Whether the property asks for a number, though maybe not for a number alone.
bool asksForNumbers(const PropertySchema &schema);

/// Whether the property is made for values of this type. A kind of "string" asks for something to
/// be taken as text, which any single value is.
bool isAskedFor(const PropertySchema &schema, VarType type);

/// Whether a variable of this type can take what the property says is the result: one that the
/// editor offers, and for a number any other single value.
bool takesResult(const PropertySchema &schema, VarType type);

/// One property of one step, as the rules of a check look at it.
struct Setting
{
    int step = 0;
    QString typeId; ///< the step's
    PropertySchema schema;
    PropertyRole role = PropertyRole::Other;
    bool isShown = true;
    QVariant value;
    OperandText operand; ///< of a text or a number
    PropertyFacts facts; ///< of the property

    /// The value as it is written.
    QString text() const { return value.toString(); }
};

/// Whether the step searches for the text, be it to find, to replace, to cut or to split.
bool isSearchText(const Setting &setting);

/// What a check wants to know about a task: its settings, its variables, and who reads and writes
/// them. All of it is read from annotations and values; nothing runs.
class TaskFacts
{
public:
    /// The defaults of the properties are those of the catalogue's prototypes.
    TaskFacts(const Task &task, const OperationCatalog &catalog, const FactBook &book);

    /// The settings of each step, in the order of its properties.
    const QVector<QVector<Setting>> &steps() const { return m_steps; }

    /// The property called `name` of the same step, null when there is none.
    const Setting *sibling(const Setting &setting, const QString &name) const;

    const QList<TaskVariable> &variables() const { return m_variables; }
    const NameIndex &names() const { return m_names; }

    /// The variable called `name`, null when it is not declared.
    const TaskVariable *variable(const QString &name) const;

    /// The value that the variable is known to have throughout: the one it starts with, when no
    /// step writes it. Invalid when that is not known. A text or list without anything in it waits
    /// for its value from outside, so it is not known either.
    QVariant knownValue(const TaskVariable &variable) const;

    /// Returns the value that the operand has in step `step` if that is certain: of a literal, or
    /// of a variable that no earlier step writes and that has a value. Invalid for any other
    /// operand.
    QVariant valueAt(const OperandText &operand, int step) const;

    /// Returns the texts that the text of the operand in step `step` can be made of: its value, or
    /// the operands of the step that wrote it, and of the steps before that. Nothing if one of them
    /// is not certain, or if there are many.
    std::optional<QStringList> textsBehind(const OperandText &operand, int step) const;

    /// Returns the last setting before step `step` that writes its result into the variable; null
    /// if there is none.
    const Setting *writerBefore(const QString &name, int step) const;

    /// Whether a text with the purpose `Purpose::SearchText` is this literal.
    bool isSearchedFor(const QString &literal) const { return m_searched.contains(literal); }

    /// The type of what a reference finds; none when it finds nothing, which is certain as far as
    /// the value of the variable is.
    VarType typeBehind(const OperandText &operand) const;

    /// The settings that read a variable, hidden ones too, in the order of the steps.
    QVector<const Setting *> readers(const QString &name) const { return m_readers.value(name); }

    /// Whether any setting names the variable, be it to no avail.
    bool isUsed(const QString &name) const { return m_used.contains(name); }

    /// The settings that write their result into a variable, which so has to be able to take it, in
    /// the order of the steps.
    QVector<const Setting *> writers(const QString &name) const { return m_writers.value(name); }

private:
    Q_DISABLE_COPY_MOVE(TaskFacts)

    void readSteps(const Task &task, const OperationCatalog &catalog, const FactBook &book);
    void noteUse(const Setting &setting);
    /// The texts found so far, and how many operands were followed.
    struct Origins
    {
        QStringList texts;
        int operands = 0;
    };

    bool collectOrigins(const OperandText &operand, int step, Origins &origins) const;
    bool collectOriginsOfStep(int step, Origins &origins) const;
    bool mayHaveColumns(const TaskVariable &variable) const;

    QVector<QVector<Setting>> m_steps;
    QList<TaskVariable> m_variables;
    NameIndex m_names;
    QHash<QString, int> m_places; ///< of the variables in their list
    QHash<QString, QVector<const Setting *>> m_readers;
    QHash<QString, QVector<const Setting *>> m_writers;
    QSet<QString> m_used;
    QSet<QString> m_searched;
};
