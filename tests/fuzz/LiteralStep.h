#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class Operation;
class VariableScope;

/// What a step does, as the definition of its operation says it, line by line and at any cost. It
/// shares nothing with the library but its host, so that the two can be held against each other.
class LiteralStep
{
public:
    /// The settings are the properties of `step`; it is not run itself.
    LiteralStep(const Operation &step, VariableScope &scope);

    void run();

    /// The warnings logged by `run`, oldest first.
    QStringList warnings() const { return m_warnings; }

private:
    QVariant setting(const char *name) const;
    QVariant resolve(const QString &operand) const;
    QVariant member(const QVariant &value, const QString &path) const;
    static QString render(const QVariant &value);
    QString text(const char *name) const;
    double number(const char *name, bool *ok) const;
    int wholeNumber(const char *name, int fallback) const;
    Qt::CaseSensitivity sensitivity() const;

    void warn(const QString &before, const QString &quoted, const QString &after);
    void warnMode(const QString &what, int mode);
    void storeText(const QString &result);
    void storeNumber(double result);
    void storeList(const QVariantList &result);

    void append();
    void substring();
    void pad();
    void between();
    void trim();
    void reverse();
    void changeCase();
    void toNumber();
    void fromNumber();
    void join();
    void split();
    void find();
    void replace();

    const Operation &m_step;
    VariableScope &m_scope;
    QStringList m_warnings;
};
