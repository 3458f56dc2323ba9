#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

/// The values that variables have in a run, as the list of variables looks at them.
class CurrentValues : public QObject
{
    Q_OBJECT

public:
    explicit CurrentValues(QObject *parent = nullptr);

    /// Whether a run has begun, so that there are values apart from the start values.
    virtual bool areThere() const = 0;
    /// Whether `set` is possible now.
    virtual bool mayChange() const = 0;
    /// The value of a variable, invalid when there is none.
    virtual QVariant value(const QString &variable) const = 0;
    /// The variables that the last step wrote.
    virtual QStringList written() const = 0;
    /// Gives a variable a value of its type, as a step of undo.
    virtual void set(const QString &variable, const QVariant &value) = 0;

Q_SIGNALS:
    /// Anything of the above may be otherwise.
    void changed();
};
