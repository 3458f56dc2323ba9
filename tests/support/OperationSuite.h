#pragma once

#include "tests/support/QuietTest.h"

#include "VarType.h"
#include "VariableScope.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

#include <memory>

class Operation;

/// The tests that every operation has. A test of an operation derives from it, states what is fixed
/// about the operation, and gives rows of settings with what they lead to.
class OperationSuite : public QuietTest
{
    Q_OBJECT

protected:
    /// Property names and values. The result variable is "r" unless a row sets another one; the key
    /// "into" is no property but the declared type of "r".
    using Settings = QVariantMap;

    struct Facts
    {
        QByteArray className;
        QString typeId;
        QString typeName;
        QString icon;
        QStringList annotations;     ///< "key = value", in order
        QVariantList defaults;       ///< in the order of the properties
        QStringList summaryTexts;    ///< what `toString` has translated, at the defaults
        QStringList sentenceTexts;   ///< what `description` has translated, at the defaults
        VarType resultType;          ///< the declared type of "r" where a row says nothing
        QString refusal;             ///< the end of the warning when "r" has an unfit type
        QList<VarType> refusedTypes; ///< the unfit types, an undeclared variable aside
        QString undeclaredRefusal;   ///< the same when "r" is not declared
    };

    virtual Facts facts() const = 0;
    virtual Operation *create(QObject *parent) const = 0;

    /// Rows of `results`: calls to `gives` and `warns`.
    virtual void resultRows() const = 0;
    /// Rows of `presentation`: calls to `shows`.
    virtual void presentationRows() const = 0;

    /// A run that writes `expected`, of that very type, and logs `warnings`.
    static void gives(const char *row, const Settings &settings, const QVariant &expected,
                      const QStringList &warnings = {});
    /// A run that writes nothing and logs `warnings`.
    static void warns(const char *row, const Settings &settings, const QStringList &warnings);
    /// Settings, the summary and the sentence they are shown with.
    static void shows(const char *row, const Settings &settings, const QString &summary,
                      const QString &sentence);

    /// The facts about a result that only a string variable takes.
    static Facts textFacts();

    /// An operation with these settings.
    std::unique_ptr<Operation> make(const Settings &settings) const;

private Q_SLOTS:
    void identity();
    void annotations();
    void defaults();
    void results_data() { addResultColumns(); }
    void results();
    void withoutScope();
    void withoutResultVariable();
    void unfitResultVariable();
    void dollarBelongsToTheResultName();
    void presentation_data() { addPresentationColumns(); }
    void presentation();
    void translations();
    void record_data();
    void record();
    void truncatedRecord();
    void cloning();

private:
    /// Settings that every operation has a result for.
    Settings workable(const QString &resultVar) const;
    void addResultColumns() const;
    void addPresentationColumns() const;
    QList<QByteArray> propertyNames() const;
    /// An operation whose properties all differ from their defaults and from each other.
    std::unique_ptr<Operation> makeUnusual() const;
    VariableScope sampleScope(VarType resultType) const;
};
